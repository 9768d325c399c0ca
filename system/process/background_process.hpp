#pragma once

namespace kelmar {

/// Declares that this process shows no window of its own, so that the system gives it no icon in
/// the Dock (macOS: LSUIElement). Called on the main thread before any framework is asked anything:
/// once a framework has introduced the process to the system, it is too late. Does nothing where
/// processes have no icons.
void becomeBackgroundProcess();

} // namespace kelmar
