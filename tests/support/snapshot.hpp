#pragma once

#include <map>
#include <string>

namespace kelmar::test {

/// A whole tree: maps each path below `root` to kind, mode, owner, size, times of modification and
/// status change, and contents (a symlink's target, a file's bytes). Two snapshots are equal if
/// nothing was written, renamed, touched or chmodded in between. Access times are not included.
std::map<std::string, std::string> snapshot(const std::string& root);

/// The same without times: the tree's content only.
std::map<std::string, std::string> contents(const std::string& root);

} // namespace kelmar::test
