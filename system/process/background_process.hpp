#pragma once

namespace kelmar {

/// Declares that this process has no window, so that the system gives it no icon in the Dock
/// (macOS: LSUIElement). Call it on the main thread before any framework function: once a framework
/// has registered the process with the system, it is too late. Does nothing on systems where
/// processes have no icons.
void becomeBackgroundProcess();

} // namespace kelmar
