#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

/// File-system queries for which std::filesystem would follow symlinks or throw.
namespace kelmar {

/// Returns true if lstat(2) succeeds for `path`. A dangling symlink exists; a path below a folder
/// that can't be searched does not.
bool exists(const std::string& path);

/// The names directly inside the folder at `path`, hidden ones included, without "." and "..",
/// sorted by bytes (for UTF-8 that is code-point order). Absent if the folder cannot be listed
/// completely: missing, not a folder, unreadable. A symlink to a folder is followed.
std::optional<std::vector<std::string>> sortedNames(const std::string& path);

/// The same, but also absent if it takes longer than `patience`, as on a disk that never answers.
/// The waiting thread is then abandoned.
std::optional<std::vector<std::string>> sortedNamesWithin(std::chrono::milliseconds patience,
                                                          const std::string& path);

/// The bytes of the regular file at `path`; symlinks are followed. Absent if there is none, if it
/// cannot be read, or if it holds more than `limit` bytes. Never blocks on a pipe or a device in
/// the file's place: they are not regular files.
std::optional<std::string> readFile(const std::string& path, std::size_t limit);

/// Returns true if there is a symlink at `path`.
bool isLink(const std::string& path);

/// Deletes the file or symlink at `path`, not a folder. Returns true if this call deleted it.
bool removeFile(const std::string& path);

/// Deletes the folder at `path` if it is empty (rmdir(2)); returns the error, if any.
std::error_code removeFolder(const std::string& path);

} // namespace kelmar
