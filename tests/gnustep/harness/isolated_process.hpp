#pragma once

#include <optional>

namespace kelmar::test {

/// Runs this program once more in a child process with its own home folder and folder for temporary
/// files, which are removed afterwards: GNUstep reads its environment when a process starts. Kills
/// the helper processes that GNUstep has started, and the child after a timeout, before ctest(1)
/// would kill it and leave the helpers behind.
///
/// Returns the child's exit status; nothing in the child, which is to go on with the tests.
std::optional<int> runIsolated(char** arguments);

} // namespace kelmar::test
