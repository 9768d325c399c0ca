#pragma once

#include "tests/screen/geometry.hpp"
#include "tests/support/x_server.hpp"

#include <optional>
#include <string>
#include <vector>

struct _XDisplay; // NOLINT(*-reserved-identifier): the name that the library gave it

namespace kelmar::test {

/// A top-level window as the X server knows it.
struct ScreenWindow {
    unsigned long id = 0;
    std::string title; ///< empty for menus and the like
    Rectangle place;

    friend bool operator==(const ScreenWindow&, const ScreenWindow&) = default;
};

/// A screen of 1280 by 1300, room for the window at twice its size, that nobody sees, with a
/// keyboard and a mouse that tests use. No window manager runs on it: windows have no frames and
/// stay where they put themselves.
class Screen {
public:
    static constexpr int width = 1280;
    static constexpr int height = 1300;

    /// Why there can be no such screen on this machine; nothing if there can.
    static std::optional<std::string> skipReason() { return XServer::skipReason(); }

    Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    ~Screen();

    /// The value for DISPLAY.
    [[nodiscard]] const std::string& name() const { return server_.name(); }

    /// The windows that are to be seen.
    [[nodiscard]] std::vector<ScreenWindow> windows() const;

    /// Presses and releases a key, by its X name, with others held down before it: "Tab",
    /// "Shift+Tab", "Control+Alt+h".
    void press(const std::string& keys) const;

    void moveTo(Point place) const;
    void click(Point place) const;
    /// Turns the wheel towards the person by that many notches.
    void scrollDown(Point place, int notches) const;

    /// What a window manager does when the close button is pressed.
    void askToClose(const ScreenWindow& window) const;

    /// The one size that a window says it can have, if it says so.
    [[nodiscard]] std::optional<Point> fixedSize(const ScreenWindow& window) const;

    /// The text in the clipboard, or nothing where its owner gives none.
    [[nodiscard]] std::optional<std::string> clipboard() const;

private:
    XServer server_;
    _XDisplay* display_ = nullptr;
};

} // namespace kelmar::test
