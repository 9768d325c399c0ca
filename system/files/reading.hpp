#pragma once

#include <cstddef>
#include <string>

namespace kelmar {

/// Reads the file or pipe behind the open `descriptor` from its position to the end, at most `limit`
/// bytes, and appends them to `bytes`. A read that a signal interrupts is repeated; a `descriptor`
/// that never ends a read blocks. False when an error came first: `bytes` then has what was read
/// before.
bool appendToEnd(int descriptor, std::string& bytes, std::size_t limit = std::string::npos);

} // namespace kelmar
