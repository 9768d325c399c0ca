#pragma once

#include <functional>

namespace kelmar::test {

/// Runs the main run loop, with events handled as the application does, until `condition` holds;
/// false if it doesn't before the timeout.
bool eventually(const std::function<bool()>& condition);

/// Runs it until it is idle: what was deferred has happened.
void settle();

/// Runs it for that long.
void runLoopFor(double seconds);

} // namespace kelmar::test
