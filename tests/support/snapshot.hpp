#pragma once

#include <map>
#include <string>

namespace kelmar::test {

/// A whole tree as it stands: path below `root` to kind, mode, owner, size, both times that a
/// change leaves behind, and contents (a link's target, a file's bytes). Two snapshots are equal
/// when nothing was written, renamed, touched or chmodded in between. The time of the last reading
/// is not part of it.
std::map<std::string, std::string> snapshot(const std::string& root);

/// The same without times: what a tree holds, whatever happened to it.
std::map<std::string, std::string> contents(const std::string& root);

} // namespace kelmar::test
