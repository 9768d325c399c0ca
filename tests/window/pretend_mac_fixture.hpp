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

    /// Replaces a program of the box by one that blocks until `unblock`.
    void block(const std::string& path) const;
    /// Whether somebody waits for a program that blocks.
    [[nodiscard]] bool isBlocked() const;
    /// Lets every blocked program end, and answers whoever asks for the password.
    void unblock() const;

    /// Starts the removal and waits until it stands still in the middle, at the question for the
    /// administrator's password.
    void startAndStopAtThePassword() const;

    std::unique_ptr<Box> box;
};

} // namespace kelmar::test
