#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Package receipts, through pkgutil(1). Each call runs /usr/sbin/pkgutil once and blocks until it
/// has ended. May be called from any thread.
namespace kelmar::Pkgutil {

/// Returns true if the receipt database of `volume` has the package `identifier` (`--pkg-info`:
/// exit status 0). If `volume` is absent, looks in the system's database. An installation for one
/// user keeps its receipts on the "volume" that is that user's home folder.
bool hasReceipt(std::string_view identifier,
                const std::optional<std::string>& volume = std::nullopt);

/// Deletes the receipt (`--forget`) from the database of `volume`; no file of the package is
/// touched. Absent on success, else pkgutil's own words, trimmed.
std::optional<std::string> forget(std::string_view identifier, const std::string& volume);

} // namespace kelmar::Pkgutil
