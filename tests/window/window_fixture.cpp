#include "tests/window/window_fixture.hpp"

#include "discovery/size_in_words.hpp"
#include "system/mac_tools/disk_usage.hpp"
#include "tests/accessibility/reading_order.hpp"
#include "tests/support/desktop_session.hpp"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <thread>

#include <unistd.h>

namespace kelmar::test {

namespace {

testing::AssertionResult resultOf(bool held, const std::string& expected,
                                  const std::vector<std::string>& seen) {
    if (held) {
        return testing::AssertionSuccess();
    }
    testing::AssertionResult failure = testing::AssertionFailure();
    failure << "expected: " << expected << "\nseen:";
    for (const std::string& line : seen) {
        failure << "\n    " << line;
    }
    return failure;
}

} // namespace

void Window::SetUp() {
    for (const auto& reason : {Screen::skipReason(), AccessibilityBus::skipReason()}) {
        if (reason) {
            GTEST_SKIP() << *reason;
        }
    }
    AccessibilityBus::instance();
    screen = std::make_unique<Screen>();
    focus = std::make_unique<FocusTracker>();
    mac = std::make_unique<MacTree>(root.path());
}

Program Window::onTheScreen(Program program) const {
    for (const std::string& name : desktopVariables()) {
        program.environment.try_emplace(name, std::nullopt);
    }
    program.environment["LANG"] = "C.UTF-8";
    program.environment["DISPLAY"] = screen->name();
    program.environment["AT_SPI_BUS_ADDRESS"] = std::nullopt; // see AccessibilityBus
    program.environment["DBUS_SESSION_BUS_ADDRESS"] = AccessibilityBus::instance().address();
    program.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1";
    return program;
}

void Window::open(const Program& started) {
    Program patient = onTheScreen(started);
    patient.timeout = std::chrono::hours(1); // a person's patience is `Deadline`
    running = std::make_unique<WindowProgram>(patient);
    if (!eventually(
            [this] { return running->hasEnded() || (onScreen().id != 0 && !page().empty()); })) {
        throw std::runtime_error(onScreen().id != 0 ? "the window says nothing to screen readers"
                                                    : "no window opened");
    }
    if (running->hasEnded()) {
        throw std::runtime_error("it ended without a window: " + running->end().error);
    }
}

void Window::open() {
    open(test::uninstaller({}, root.path()));
}

bool Window::eventually(const std::function<bool()>& condition) const {
    using Clock = std::chrono::steady_clock;
    const Deadline deadline;
    for (Clock::time_point begin = Clock::now(); !condition(); begin = Clock::now()) {
        if (deadline.hasPassed()) {
            return false;
        }
        // Reading the page takes the program's time as well: most of it is to be the program's own.
        const Clock::duration taken = Clock::now() - begin;
        std::this_thread::sleep_for(
            std::max<Clock::duration>(std::chrono::milliseconds(20), 3 * taken));
        meanwhile();
        AccessibilityBus::dispatchEvents();
    }
    return true;
}

Accessible Window::window() const {
    return AccessibilityBus::instance().program(running->process()).find("frame", title);
}

ScreenWindow Window::onScreen() const {
    for (const ScreenWindow& each : screen->windows()) {
        if (each.title == title) {
            return each;
        }
    }
    return {};
}

std::vector<Accessible> Window::menus() const {
    for (const Accessible& part : window().children()) {
        if (part.role() == "menu bar") {
            return part.children();
        }
    }
    return {};
}

std::vector<Accessible> Window::itemsOf(const Accessible& menu) {
    const std::vector<Accessible> popups = menu.children();
    return popups.size() == 1 ? popups.front().children() : std::vector<Accessible>();
}

Window::Lines Window::page() const {
    return linesInReadingOrder(window());
}

testing::AssertionResult Window::becomes(const Lines& expected) const {
    Lines seen;
    const bool held = eventually([&] { return (seen = page()) == expected; });
    std::string whole;
    for (const std::string& line : expected) {
        whole += "\n    " + line;
    }
    return resultOf(held, whole, seen);
}

testing::AssertionResult Window::shows(const std::string& line) const {
    Lines seen;
    const bool held = eventually([&] {
        seen = page();
        return std::find(seen.begin(), seen.end(), line) != seen.end();
    });
    return resultOf(held, line, seen);
}

testing::AssertionResult Window::focusIsOn(const std::string& expected) const {
    std::string seen;
    const bool held = eventually([&] {
        const Accessible element = focus->element();
        seen = element.role() + ": " + element.name();
        return seen == expected;
    });
    return resultOf(held, expected, {seen});
}

void Window::click(const std::string& role, const std::string& name) const {
    Rectangle place;
    Accessible element;
    if (!eventually([&] {
            if (!element) {
                element = window().find(role, name);
            }
            const Rectangle before = place;
            place = element.place();
            return place.width > 0 && place == before;
        })) {
        throw std::runtime_error("there is no " + role + " called " + name + " to click on");
    }
    screen->click(place.centre());
}

std::string Window::sizeOf(const Lines& folders) {
    std::int64_t sum = 0;
    for (const std::string& folder : folders) {
        Program du;
        du.path = "/usr/bin/du";
        du.arguments = {"-sk", folder};
        sum += DiskUsage::kibibytesIn(du.run().output).value_or(0) * 1024;
    }
    return sizeInWords(sum, "");
}

std::chrono::milliseconds Window::expectEnd() {
    const auto begin = WindowProgram::Clock::now();
    EXPECT_TRUE(eventually([this] { return running->hasEnded(); })) << "it did not end";
    if (!running->hasEnded()) {
        return std::chrono::milliseconds::max();
    }
    const ProgramEnd& end = running->end();
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "");
    return std::chrono::duration_cast<std::chrono::milliseconds>(running->endedAt() - begin);
}

} // namespace kelmar::test
