#pragma once

namespace kelmar {

/// Removes every variable from this process's environment. No other thread may access it at the
/// same time (unsetenv(3)).
void clearEnvironment();

} // namespace kelmar
