#pragma once

#include "system/files/file_descriptor.hpp"

#include <chrono>
#include <string>

namespace kelmar::test {

struct Pipe {
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

/// A pipe(7), both ends close-on-exec. Throws std::system_error.
Pipe makePipe();

/// Reads what there is to read, and waits for it if there is nothing yet. Closes the descriptor at
/// the end of the file or on an error.
std::string readSome(FileDescriptor& from);

/// Waits until there is something to read, or the end of the file; false if neither comes in time.
bool waitForInput(const FileDescriptor& from, std::chrono::milliseconds timeout);

} // namespace kelmar::test
