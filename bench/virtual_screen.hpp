#pragma once

#include <string>

#include <sys/types.h>

namespace kelmar::bench {

/// A screen that nobody sees, of 1280 by 900 pixels: an X server of its own for as long as this
/// lives. It, and what this process starts from then on, opens its windows there.
class VirtualScreen {
public:
    /// Ends the run when there is no such server.
    VirtualScreen();
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;
    ~VirtualScreen();

private:
    pid_t server_ = -1;
};

} // namespace kelmar::bench
