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

/// Reads the available bytes, and blocks if there are none yet. Closes the descriptor at the end of
/// the file or on an error.
std::string readSome(FileDescriptor& from);

/// Waits until there is something to read, or the end of the file; returns false on a timeout.
bool waitForInput(const FileDescriptor& from, std::chrono::milliseconds timeout);

} // namespace kelmar::test
