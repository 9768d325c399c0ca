#pragma once

#include "discovery/inventory.hpp"
#include "discovery/kelmar_paths.hpp"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Finds everything of the product. Only reads, keeps no state between calls, and never fails: a
/// probe without an answer (an unreadable folder, a malformed file, a command that doesn't start)
/// counts as "not there". Every function may be called from any thread, and blocks it.
namespace kelmar::Scanner {

/// The whole scan. On the real machine it queries the system through pkgutil(1), launchctl(1) and
/// security(1); under a test root it depends on that folder alone. Does not measure data folders:
/// see `size`.
Inventory scan(const KelmarPaths& paths);

/// The installation of one scope; may be empty.
Installation installation(Scope scope, const KelmarPaths& paths);

/// The paths of the account's settings, caches, logs and temporary files.
std::vector<std::string> settings(const KelmarPaths& paths);

/// The timeout for listing a data root. It may lie on another disk, which may never answer.
constexpr std::chrono::minutes patience{2};

/// The scope's data root. Absent if it has none of the known folders (then the folder is not the
/// product's), or if it cannot be listed `within` that time.
std::optional<DataRoot> dataRoot(Scope scope, const KelmarPaths& paths,
                                 std::chrono::milliseconds within = patience);

/// The bytes that `path` takes on disk, in whole kibibytes, as du(1) counts them. Absent if it
/// can't be measured, or not within two hours. Can take minutes. 2^53 KiB or more is a broken
/// contract.
std::optional<std::int64_t> size(const std::string& path);

/// Returns true if `path` and everything beneath it belong to the real user of this process;
/// symlinks are not followed. True for a path that does not exist, since removing it needs nobody's
/// rights. False if anything beneath an existing folder cannot be examined. Stops at the first
/// entry that is somebody else's.
bool ownedByMe(const std::string& path);

} // namespace kelmar::Scanner
