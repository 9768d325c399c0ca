#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

/// What the program asks of the file system, where std::filesystem follows links or throws.
namespace kelmar {

/// Whether lstat(2) finds something at `path`: a dangling link exists, a path below a folder that
/// can't be searched does not.
bool exists(const std::string& path);

/// The names directly inside the folder at `path`, hidden ones included, without "." and "..",
/// sorted by bytes (for UTF-8 that is code-point order). Absent when the folder cannot be listed to
/// its end: missing, not a folder, unreadable. A link to a folder is listed as that folder.
std::optional<std::vector<std::string>> sortedNames(const std::string& path);

/// The same, absent also when it takes longer than `patience`, as on a disk that never answers. The
/// thread that waits for it is then left behind.
std::optional<std::vector<std::string>> sortedNamesWithin(std::chrono::milliseconds patience,
                                                          const std::string& path);

/// The bytes of the regular file at `path` (links followed), absent when there is none, when it
/// cannot be read, or when it holds more than `limit` bytes. Never waits: a pipe or a device in the
/// file's place is no regular file.
std::optional<std::string> readFile(const std::string& path, std::size_t limit);

/// Whether there is a symlink at `path`.
bool isLink(const std::string& path);

/// Deletes the file or link at `path`, not a folder. Whether it is gone now by this call.
bool removeFile(const std::string& path);

/// Deletes the folder at `path` if it is empty (rmdir(2)); what failed, if anything.
std::error_code removeFolder(const std::string& path);

} // namespace kelmar
