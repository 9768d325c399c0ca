#pragma once

#include <functional>

namespace kelmar::test {

/// Turns the main run loop, with events handled as the application does, until `condition` holds;
/// false when it doesn't within some seconds.
bool eventually(const std::function<bool()>& condition);

/// Turns it until nothing waits there any more: what was put off has happened.
void settle();

/// Turns it for that long.
void turnFor(double seconds);

} // namespace kelmar::test
