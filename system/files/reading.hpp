#pragma once

#include <cstddef>
#include <string>

#include <sys/types.h>

namespace kelmar {

/// Reads up to `size` bytes from the open `descriptor` and appends them to `bytes`. How many came:
/// 0 at the end, -1 after an error (errno). A read that a signal interrupts is repeated.
ssize_t readOnce(int descriptor, std::string& bytes, std::size_t size);

/// Reads the file or pipe behind the open `descriptor` from its position to the end, at most
/// `limit` bytes, and appends them to `bytes`. A `descriptor` that never ends a read blocks. False
/// when an error came first: `bytes` then has what was read before.
bool appendToEnd(int descriptor, std::string& bytes, std::size_t limit = std::string::npos);

/// Reads on to the end, keeping nothing.
void dropToEnd(int descriptor);

} // namespace kelmar
