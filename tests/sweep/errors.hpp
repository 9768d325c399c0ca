#pragma once

#include <vector>

namespace kelmar::test {

/// The errors that the kernel may answer to a system call of this number whatever its arguments
/// are: a disk or a table that is full, a right or a thing that is gone meanwhile, a signal. Empty
/// for calls that cannot fail so, and for close, futex and the calls of memory management: who
/// injects an error skips the call, and no kernel leaves those undone.
std::vector<int> errorsOf(long number);

} // namespace kelmar::test
