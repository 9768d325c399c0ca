#pragma once

#include "system/files/folder_entries.hpp"

namespace kelmar {

/// `readFolder` by readdir(3) and fstatat(2), which every file system answers: slower than what a
/// system has of its own, and the same answers.
FolderReading readFolderPortably(int descriptor,
                                 const std::function<bool(const FolderEntry&)>& visit);

/// The entry `name` of the open folder `descriptor`, as fstatat(2) describes it; false when it
/// can't be looked at.
bool lookAtEntry(int descriptor, const char* name, FolderEntry& entry);

} // namespace kelmar
