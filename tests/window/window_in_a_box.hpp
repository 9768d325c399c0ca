#pragma once

#include "tests/box/box.hpp"
#include "tests/window/window_fixture.hpp"

#include <memory>

namespace kelmar::test {

/// The window on a pretend Mac, opened by its user, who is no administrator.
class WindowOnAPretendMac : public Window {
protected:
    void SetUp() override;
    void TearDown() override;

    using Window::open;
    void open();

    /// Kelmar for the user and for everybody, each with some data.
    void installForBoth() const;

    /// Puts in the place of a program of the box one that does nothing until `goOn`.
    void hold(const std::string& path) const;
    /// Whether somebody waits for a program that is held.
    [[nodiscard]] bool isHeld() const;
    /// Lets everything that is held end, and whoever asks for the password have it.
    void goOn() const;

    /// Starts the removal and waits until it stands still in the middle, at the question for the
    /// administrator's password.
    void startAndStopAtThePassword() const;

    std::unique_ptr<Box> box;
};

} // namespace kelmar::test
