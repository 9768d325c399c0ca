#pragma once

namespace kelmar {

/// Opens the window and returns when it has been closed: 0, or 2 with one line on standard error
/// where this system cannot show it. Called on the main thread, at most once.
int runWindowApplication();

} // namespace kelmar
