#include "tests/window/pretend_mac_fixture.hpp"
#include "tests/window/session_manager.hpp"

#include <algorithm>
#include <functional>
#include <map>

namespace kelmar {
namespace {

using test::Accessible;
using test::SessionManager;
using test::WindowOnAPretendMac;

class WhileWorking : public WindowOnAPretendMac {
protected:
    void SetUp() override {
        WindowOnAPretendMac::SetUp();
        if (!IsSkipped()) {
            installForBoth();
        }
    }

    /// Whatever was asked of the window before, it has dealt with it once it does what is asked
    /// now.
    void expectNothingHappened() {
        if (!details) {
            details = window().find("push button", "Details");
        }
        ASSERT_TRUE(details.is(Accessible::expandable));
        const bool unfolded = details.is(Accessible::expanded);
        screen->click(details.place().centre());
        ASSERT_TRUE(eventually(
            [&] { return running->hasEnded() || details.is(Accessible::expanded) != unfolded; }));
        ASSERT_FALSE(running->hasEnded());
        EXPECT_EQ(screen->windows().size(), 1U) << "no window says anything";
    }

    void chooseQuit() {
        click("menu item", title);
        ASSERT_TRUE(eventually([this] { return screen->windows().size() == 2; }));
        click("menu item", "Quit Kelmar Uninstaller");
        ASSERT_TRUE(
            eventually([this] { return running->hasEnded() || screen->windows().size() == 1; }));
    }

    void chooseQuitBlindly() {
        const std::vector<Accessible> items = itemsOf(menus().at(0));
        const auto quit = std::find_if(items.begin(), items.end(), [](const Accessible& each) {
            return each.name() == "Quit Kelmar Uninstaller";
        });
        ASSERT_NE(quit, items.end());
        quit->press();
    }

    Accessible details;

    /// Every way there is to end the program.
    std::map<std::string, std::function<void()>> ways{
        {"the close button", [this] { screen->askToClose(onScreen()); }},
        {"Control+Q", [this] { screen->press("Control+q"); }},
        {"the menu", [this] { chooseQuit(); }},
        {"the Quit button", [this] { click("push button", "Quit"); }},
        {"a screen reader", [this] { window().find("push button", "Quit").press(); }},
        {"a screen reader's menu", [this] { chooseQuitBlindly(); }},
    };
};

TEST_F(WhileWorking, ShowsHowFarItIs) {
    open();
    startAndStopAtThePassword();
    EXPECT_TRUE(becomes({
        "heading: Uninstalling Kelmar…",
        "label: Deleting a lot of data can take a few minutes.",
        "label: Done",
        "label: Closing Kelmar and its background services",
        "label: In progress",
        "label: Removing Kelmar for all users of this Mac",
        "label: Waiting",
        "label: Removing Kelmar, its settings and permissions from your account",
        "label: Waiting",
        "label: Deleting your Kelmar data",
        "label: Waiting for an administrator's password",
        "push button: Details",
        "label: Please keep this window open until it's done.",
        "push button: Quit (disabled)",
    }));
    unblock();
    EXPECT_TRUE(shows("heading: Kelmar has been removed"));
    screen->press("Return");
    expectEnd();
}

TEST_F(WhileWorking, NothingEndsIt) {
    open();
    startAndStopAtThePassword();
    for (const auto& [name, way] : ways) {
        SCOPED_TRACE(name);
        way();
        expectNothingHappened();
    }
    for (const char* const key : {"Escape", "Return", "KP_Enter", "Alt+F4"}) {
        SCOPED_TRACE(key);
        screen->press(key);
        expectNothingHappened();
    }
    unblock();
    EXPECT_TRUE(shows("heading: Kelmar has been removed"));
    screen->askToClose(onScreen());
    expectEnd();
}

TEST_F(WhileWorking, EverythingEndsItOnceItIsDone) {
    for (const auto& [name, way] : ways) {
        SCOPED_TRACE(name);
        mac->app(Scope::me, "4.3");
        Window::open();
        ASSERT_TRUE(shows("push button: Uninstall"));
        screen->press("Return");
        ASSERT_TRUE(shows("heading: Kelmar has been removed"));
        way();
        EXPECT_LE(expectEnd(), test::exitTimeout);
    }
}

TEST_F(WhileWorking, KeepsTheSessionOpen) {
    SessionManager session;
    meanwhile = [&session] { session.serve(); };
    test::Program program = box->uninstaller({});
    program.environment["SESSION_MANAGER"] = session.address();
    Window::open(program);
    ASSERT_TRUE(eventually([&] { return session.hasMember(); }));
    startAndStopAtThePassword();
    for (int round = 0; round < 2; ++round) {
        session.askToEnd();
        ASSERT_TRUE(eventually([&] { return session.answer() != SessionManager::Answer::none; }));
        EXPECT_EQ(session.answer(), SessionManager::Answer::refused);
        expectNothingHappened();
    }
    unblock();
    ASSERT_TRUE(shows("heading: Kelmar has been removed"));
    session.askToEnd();
    ASSERT_TRUE(eventually([&] { return session.answer() != SessionManager::Answer::none; }));
    EXPECT_EQ(session.answer(), SessionManager::Answer::agreed);
    EXPECT_FALSE(running->hasEnded()) << "until the session tells it to";
    screen->press("Return");
    expectEnd();
}

} // namespace
} // namespace kelmar
