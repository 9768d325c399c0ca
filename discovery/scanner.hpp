#pragma once

#include "discovery/inventory.hpp"
#include "discovery/kelmar_paths.hpp"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Finds everything of the product. Only reads, keeps nothing between calls, and never fails: a
/// probe that can't be answered (an unreadable folder, a malformed file, a command that doesn't
/// start) reads as "not there". Every operation may be called from any thread and blocks it while
/// it looks.
namespace kelmar::Scanner {

/// The whole scan. On the real machine it asks the system through pkgutil(1), launchctl(1) and
/// security(1); under a test root it depends on that folder alone. Data folders are not measured:
/// see `size`.
Inventory scan(const KelmarPaths& paths);

/// One scope's installation, possibly with nothing in it.
Installation installation(Scope scope, const KelmarPaths& paths);

/// The paths of the account's settings, caches, logs and temporary files.
std::vector<std::string> settings(const KelmarPaths& paths);

/// How long a data root may take to say what is in it. It may lie on another disk than everything
/// else, which may never answer.
constexpr std::chrono::minutes patience{2};

/// The scope's data root; absent without any of the known folders in it (a folder of that name is
/// then not the product's), and when it does not answer `within` that time.
std::optional<DataRoot> dataRoot(Scope scope, const KelmarPaths& paths,
                                 std::chrono::milliseconds within = patience);

/// The bytes that `path` takes on disk, in whole kibibytes, as du(1) counts them; absent when it
/// can't be measured, or not within two hours. Can take minutes. 2^53 KiB or more is a broken
/// contract.
std::optional<std::int64_t> size(const std::string& path);

/// Whether `path` and everything beneath it belong to the real user of this process, links not
/// followed. True for a path that does not exist, which nobody's rights are needed to remove; false
/// for anything beneath an existing folder that cannot be established. Stops at the first entry of
/// somebody else.
bool ownedByMe(const std::string& path);

} // namespace kelmar::Scanner
