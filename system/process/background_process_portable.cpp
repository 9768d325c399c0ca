#include "system/process/background_process.hpp"

namespace kelmar {

void becomeBackgroundProcess() {}

} // namespace kelmar
