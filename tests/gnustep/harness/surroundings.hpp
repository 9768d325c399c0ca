#pragma once

#include "tests/window/screen.hpp"

namespace kelmar::test {

/// What the window needs around it: a screen that nobody sees, and an application. Made once,
/// before the first test.
class Surroundings {
public:
    Surroundings();

    /// Those of this process.
    static Surroundings& current();

    [[nodiscard]] const Screen& screen() const { return screen_; }

private:
    Screen screen_;
};

} // namespace kelmar::test
