#pragma once

#include "system/files/folder_entries.hpp"

#include <functional>

namespace kelmar {

/// Reads a folder in batches, as getattrlistbulk(2) returns them; tests replace the call.
struct FolderBatches {
    std::function<int()> next;                ///< a count, 0 at the end, -1 and errno
    std::function<FolderReading(int)> visit;  ///< visits the entries of a batch
    std::function<FolderReading()> otherwise; ///< fallback for a file system without the call
};

/// Repeats a call that a signal interrupts. An error before the first batch means that the file
/// system does not support the call; a later one, that the folder could not be read.
FolderReading readInBatches(const FolderBatches& batches);

} // namespace kelmar
