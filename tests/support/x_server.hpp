#pragma once

#include "tests/support/background_program.hpp"

#include <optional>
#include <string>

namespace kelmar::test {

/// An X server whose screen is in memory, Xvfb(1), running as long as the object lives. Clients of
/// any user are let in. No window manager runs on it.
class XServer {
public:
    /// Why this machine can't start one; nothing if it can.
    static std::optional<std::string> skipReason();

    /// With one screen of that many pixels. Throws std::runtime_error if the server doesn't start.
    XServer(int width, int height);

    /// The value for DISPLAY.
    [[nodiscard]] const std::string& name() const { return name_; }

private:
    BackgroundProgram server_;
    std::string name_;
};

} // namespace kelmar::test
