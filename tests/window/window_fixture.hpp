#pragma once

#include "tests/accessibility/accessibility_bus.hpp"
#include "tests/accessibility/focus_tracker.hpp"
#include "tests/screen/screen.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/timeouts.hpp"
#include "tests/window/window_program.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kelmar::test {

/// The built program with its window open on a screen of its own, used as a person uses it: by
/// keys, by the mouse, and by what a screen reader is told.
class Window : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    static constexpr const char* title = "Kelmar Uninstaller";

    void SetUp() override;

    /// What `program` needs to open its window on the screen, whatever desktop the tests run on.
    [[nodiscard]] Program onTheScreen(Program program) const;

    /// Waits for the window of the program that it starts, which then has the keyboard. Throws when
    /// none comes.
    void open(const Program& started);
    /// On a test root: the folder of the test.
    void open();

    /// Whether `condition` comes to hold.
    [[nodiscard]] bool eventually(const std::function<bool()>& condition) const;

    /// The window, as a screen reader sees it and as it is on the screen.
    [[nodiscard]] Accessible window() const;
    [[nodiscard]] ScreenWindow onScreen() const;

    /// The menus of its bar, and the items of one, whether or not it is open.
    [[nodiscard]] std::vector<Accessible> menus() const;
    [[nodiscard]] static std::vector<Accessible> itemsOf(const Accessible& menu);

    /// What is on the page, in the order in which people read it, each as "role: name", with "(on)"
    /// and "(disabled)" where that is so.
    [[nodiscard]] Lines page() const;

    /// Waits until the page is this, or shows an element like this.
    [[nodiscard]] testing::AssertionResult becomes(const Lines& expected) const;
    [[nodiscard]] testing::AssertionResult shows(const std::string& line) const;

    /// Waits until the keyboard's focus is on this, as "role: name".
    [[nodiscard]] testing::AssertionResult focusIsOn(const std::string& expected) const;

    /// Clicks in the middle of an element, once it has come to a rest. Throws when it doesn't.
    void click(const std::string& role, const std::string& name) const;

    /// The size of these folders together, as the program writes it.
    [[nodiscard]] static std::string sizeOf(const Lines& folders);

    /// Expects the program to end by itself, well and without a word; how long that took from now.
    std::chrono::milliseconds expectEnd();

    std::unique_ptr<Screen> screen;
    std::unique_ptr<FocusTracker> focus;
    TemporaryFolder root;
    std::unique_ptr<MacTree> mac; ///< in `root`
    std::unique_ptr<WindowProgram> running;
    /// What the test itself has to do while it waits.
    std::function<void()> meanwhile = [] {};
};

} // namespace kelmar::test
