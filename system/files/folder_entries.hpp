#pragma once

#include <functional>
#include <string_view>

#include <sys/types.h>

namespace kelmar {

/// One entry of a folder, as lstat(2) would describe it.
struct FolderEntry {
    std::string_view name; ///< ends in a null character; valid during the visit only
    uid_t owner;
    bool isFolder; ///< a real folder, no link to one
};

enum class FolderReading {
    complete, ///< every entry was visited
    stopped,  ///< the visitor answered false
    failed,   ///< the folder, or one of its entries, could not be read
};

/// Visits every entry of the open folder `descriptor` but "." and "..", in the system's own order,
/// until `visit` answers false. An entry that vanishes before it was looked at is a failure. The
/// descriptor stays open and must stand at the folder's beginning.
FolderReading readFolder(int descriptor, const std::function<bool(const FolderEntry&)>& visit);

} // namespace kelmar
