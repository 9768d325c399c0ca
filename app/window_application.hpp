#pragma once

namespace kelmar {

/// Opens the window and returns 0 when it has been closed. If this system cannot show it, prints
/// one line on standard error and returns 2. Call it on the main thread, at most once.
int runWindowApplication();

} // namespace kelmar
