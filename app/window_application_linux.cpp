#include "app/window_application.hpp"
#include "system/standard_streams.hpp"

namespace kelmar {

int runWindowApplication() {
    printErrorLine(
        "Kelmar Uninstaller has no window on this system. Use --scan to list what Kelmar has "
        "here, or --help for all options.");
    return 2;
}

} // namespace kelmar
