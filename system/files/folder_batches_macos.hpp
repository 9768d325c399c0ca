#pragma once

#include "system/files/folder_entries.hpp"

#include <functional>

namespace kelmar {

/// How a folder is read with getattrlistbulk(2), without the call itself.
struct FolderBatches {
    std::function<int()> next;                ///< as the call: a count, 0 at the end, -1 and errno
    std::function<FolderReading(int)> visit;  ///< the entries of a batch
    std::function<FolderReading()> otherwise; ///< for a file system that does not know the call
};

/// A call that a signal interrupts is repeated. An error ahead of the first batch means that the
/// file system does not know the call; after it, that the folder could not be read.
FolderReading readInBatches(const FolderBatches& batches);

} // namespace kelmar
