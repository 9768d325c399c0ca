#pragma once

namespace kelmar {

/// Takes every variable out of this process's environment. No other thread may use it meanwhile
/// (unsetenv(3)).
void clearEnvironment();

} // namespace kelmar
