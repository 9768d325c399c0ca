#pragma once

#include <string>

/// Generic passwords in the current user's keychain search list, through security(1). Each call
/// runs /usr/bin/security once and blocks until it has ended; a locked keychain makes the system
/// ask for its password. May be called from any thread.
namespace kelmar::Keychain {

/// Returns true if there is an item for `service` (`find-generic-password`: exit status 0). Never
/// reads the secret.
bool hasItem(const std::string& service);

/// Deletes one item for `service` (`delete-generic-password`), the first that matches. Returns
/// false if none was deleted: there is none, or the keychain refused.
bool deleteItem(const std::string& service);

} // namespace kelmar::Keychain
