#pragma once

#include "tests/screen/screen.hpp"

namespace kelmar::test {

/// What the window needs around it: an invisible screen and an application. Made once, before the
/// first test.
class TestEnvironment {
public:
    TestEnvironment();

    /// That of this process.
    static TestEnvironment& current();

    [[nodiscard]] const Screen& screen() const { return screen_; }

private:
    Screen screen_;
};

} // namespace kelmar::test
