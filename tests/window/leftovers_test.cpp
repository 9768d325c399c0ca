#include "tests/support/unremovable.hpp"
#include "tests/window/window_fixture.hpp"

#include <filesystem>
#include <optional>

namespace kelmar {
namespace {

using test::Window;

TEST_F(Window, SaysWhatIsLeftOverAndWhyAndTriesAgain) {
    const std::string logs = mac->paths().home + "/Library/Logs/Kelmar";
    mac->app(Scope::me, "4.3").settings();
    std::optional<test::Unremovable> locked(std::in_place, logs + "/main.log");
    if (!locked->works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    open();
    ASSERT_TRUE(shows("push button: Uninstall"));
    screen->press("Return"); // there is no data, and so no question
    ASSERT_TRUE(shows("heading: Kelmar wasn't completely removed"));
    Lines lines = page();
    ASSERT_EQ(lines.size(), 10U) << testing::PrintToString(lines);
    EXPECT_NE(lines[6].find("Operation not permitted"), std::string::npos) << "as rm(1) says it";
    lines[6] = "why";
    EXPECT_EQ(lines,
              (Lines{
                  "heading: Kelmar wasn't completely removed",
                  "label: Some items couldn't be removed. Restart your Mac, then open Kelmar "
                  "Uninstaller again.",
                  "label: The Kelmar app and its background services are gone.",
                  "label: Its settings and the permissions you gave it are removed.",
                  "heading: Not removed",
                  "label: ~/Library/Logs/Kelmar",
                  "why",
                  "push button: Details",
                  "push button: Try Again",
                  "push button: Quit",
              }));

    click("push button", "Try Again");
    ASSERT_TRUE(shows("heading: Uninstall Kelmar"));
    ASSERT_TRUE(shows("push button: Uninstall"));
    screen->press("Return");
    ASSERT_TRUE(shows("heading: Not removed"));
    locked.reset();
    click("push button", "Try Again");
    ASSERT_TRUE(shows("heading: Uninstall Kelmar"));
    ASSERT_TRUE(shows("push button: Uninstall"));
    screen->press("Return");
    ASSERT_TRUE(shows("heading: Kelmar has been removed"));
    EXPECT_FALSE(std::filesystem::exists(logs));
    screen->press("Return");
    expectEnd();
}

TEST_F(Window, ReturnQuitsWhenSomethingIsLeftOver) {
    mac->app(Scope::me, "4.3").settings();
    const std::string log = mac->paths().home + "/Library/Logs/Kelmar/main.log";
    const test::Unremovable locked(log);
    if (!locked.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    open();
    ASSERT_TRUE(shows("push button: Uninstall"));
    screen->press("Return");
    ASSERT_TRUE(shows("push button: Try Again"));
    screen->press("Return");
    expectEnd();
    EXPECT_TRUE(std::filesystem::exists(log));
}

} // namespace
} // namespace kelmar
