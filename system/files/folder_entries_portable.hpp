#pragma once

#include "system/files/folder_entries.hpp"

namespace kelmar {

/// `readFolder` through readdir(3) and fstatat(2), which every file system supports: slower than
/// the system's own call, with the same results.
FolderReading readFolderPortably(int descriptor,
                                 const std::function<bool(const FolderEntry&)>& visit);

/// Reads the entry `name` of the open folder `descriptor` with fstatat(2); returns false if that
/// fails.
bool lookAtEntry(int descriptor, const char* name, FolderEntry& entry);

} // namespace kelmar
