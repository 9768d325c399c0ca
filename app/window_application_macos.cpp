#include "app/window_application.hpp"
#include "ui/appkit/run_window.hpp"

namespace kelmar {

int runWindowApplication() {
    runWindow();
    return 0;
}

} // namespace kelmar
