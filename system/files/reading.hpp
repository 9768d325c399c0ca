#pragma once

#include <cstddef>
#include <string>

#include <sys/types.h>

namespace kelmar {

/// Reads up to `size` bytes from the open `descriptor` and appends them to `bytes`. Returns their
/// number: 0 at the end, -1 after an error (errno). Repeats a read that a signal interrupts.
ssize_t readOnce(int descriptor, std::string& bytes, std::size_t size);

/// Reads the file or pipe behind the open `descriptor` from its position to the end, at most
/// `limit` bytes, and appends them to `bytes`. Blocks until the end is reached. Returns false after
/// an error; `bytes` then has what was read before it.
bool appendToEnd(int descriptor, std::string& bytes, std::size_t limit = std::string::npos);

/// Reads to the end and discards everything.
void dropToEnd(int descriptor);

} // namespace kelmar
