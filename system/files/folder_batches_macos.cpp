#include "system/files/folder_batches_macos.hpp"

#include <cerrno>

namespace kelmar {

FolderReading readInBatches(const FolderBatches& batches) {
    bool first = true;
    while (true) {
        const int count = batches.next();
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return first ? batches.otherwise() : FolderReading::failed;
        }
        if (count == 0) {
            return FolderReading::complete;
        }
        first = false;
        const FolderReading reading = batches.visit(count);
        if (reading != FolderReading::complete) {
            return reading;
        }
    }
}

} // namespace kelmar
