#pragma once

#include "tests/support/background_program.hpp"

#include <optional>
#include <string>

namespace kelmar::test {

/// Runs Xvfb(1), an X server whose screen is in memory, for the life of the object. It accepts
/// clients of any user and has no window manager.
class XServer {
public:
    /// Why this machine can't start one; absent if it can.
    static std::optional<std::string> skipReason();

    /// Starts it with one screen of that many pixels. Throws std::runtime_error if the server
    /// doesn't start.
    XServer(int width, int height);

    /// The value for DISPLAY.
    [[nodiscard]] const std::string& name() const { return name_; }

private:
    BackgroundProgram server_;
    std::string name_;
};

} // namespace kelmar::test
