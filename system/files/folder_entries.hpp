#pragma once

#include <functional>
#include <string_view>

#include <sys/types.h>

namespace kelmar {

/// One entry of a folder, with values as lstat(2) returns them.
struct FolderEntry {
    std::string_view name; ///< ends in a null character; valid during the visit only
    uid_t owner;
    bool isFolder; ///< a folder, not a symlink to one
};

enum class FolderReading {
    complete, ///< every entry was visited
    stopped,  ///< the visitor returned false
    failed,   ///< the folder, or one of its entries, could not be read
};

/// Visits every entry of the open folder `descriptor` except "." and "..", in the system's own
/// order, until `visit` returns false. An entry that vanishes before it was examined is a failure.
/// The descriptor must be at the folder's beginning and stays open.
FolderReading readFolder(int descriptor, const std::function<bool(const FolderEntry&)>& visit);

} // namespace kelmar
