#pragma once

#include <string>

/// Generic passwords in the current user's keychain search list, through security(1). Each call
/// runs /usr/bin/security once and blocks until it has ended; a locked keychain makes the system
/// ask for its password. May be called from any thread.
namespace kelmar::Keychain {

/// Whether there is an item for `service` (`find-generic-password`: exit status 0). Asks for its
/// presence only: the secret is never read.
bool hasItem(const std::string& service);

/// Deletes one item for `service` (`delete-generic-password`), the first that matches. False when
/// none was deleted: there is none, or the keychain refused.
bool deleteItem(const std::string& service);

} // namespace kelmar::Keychain
