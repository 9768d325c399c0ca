#pragma once

#include <optional>

namespace kelmar::test {

/// Runs this program once more in a process of its own, with a home and a folder for temporary
/// files that go with it: GNUstep takes its environment as it was when the process began.
/// Afterwards the servers that GNUstep has started in the background are ended; and a process that
/// hangs is ended before whoever runs the tests would do it, and would leave those servers behind.
///
/// Answers the exit status; nothing in the inner process, which is to go on with the tests.
std::optional<int> runInside(char** arguments);

} // namespace kelmar::test
