#pragma once

namespace kelmar {

/// Opens the window and answers it until it has been closed. Ends the process, with status 0, in
/// the way of the toolkit. On the main thread, at most once.
void runWindow();

} // namespace kelmar
