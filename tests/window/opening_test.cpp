#include "tests/window/window_fixture.hpp"

#include <map>
#include <set>

namespace kelmar {
namespace {

using test::Accessible;
using test::Rectangle;
using test::Screen;
using test::Window;

TEST_F(Window, OpensInTheMiddleOfTheScreenWithOneSizeAndOneTitle) {
    open();
    ASSERT_EQ(screen->windows().size(), 1U);
    const test::ScreenWindow shown = onScreen();
    EXPECT_EQ(shown.title, "Kelmar Uninstaller");
    EXPECT_EQ(shown.place,
              (Rectangle{(Screen::width - 600) / 2, (Screen::height - 620) / 2, 600, 620}));
    const auto size = screen->fixedSize(shown);
    ASSERT_TRUE(size) << "it can be resized";
    EXPECT_EQ(size->x, 600);
    EXPECT_EQ(size->y, 620);
}

TEST_F(Window, SaysWhenThereIsNothing) {
    open();
    EXPECT_TRUE(becomes({
        "heading: Kelmar isn't on this Mac",
        "label: There's nothing of Kelmar's here to remove.",
        "label: Kelmar Uninstaller looked for the Kelmar app, its background services, its "
        "settings and its data, for your account and for all users of this Mac, and found none of "
        "them.",
        "push button: Quit",
    }));
    screen->press("Return");
    expectEnd();
}

TEST_F(Window, ListsEverythingThatIsThere) {
    mac->everything();
    const KelmarPaths& paths = mac->paths();
    const std::string size = sizeOf(
        {paths.dataRoot(Scope::me) + "/Database", paths.dataRoot(Scope::me) + "/Store",
         paths.dataRoot(Scope::me) + "/Export", paths.dataRoot(Scope::me) + "/Logs",
         paths.dataRoot(Scope::allUsers) + "/CDN", paths.dataRoot(Scope::allUsers) + "/CDN_remote",
         paths.dataRoot(Scope::allUsers) + "/Models",
         paths.dataRoot(Scope::allUsers) + "/Staging"});
    open();
    EXPECT_TRUE(becomes({
        "heading: Uninstall Kelmar",
        "label: Removes the Kelmar app, its background services, its settings and the permissions "
        "you gave it.",
        "heading: Found on this Mac",
        "label: Kelmar 4.2.1, installed for all users",
        "label: /Applications/Kelmar.app and /Library/Kelmar",
        "label: Kelmar 4.3, installed for you",
        "label: ~/Applications/Kelmar.app and ~/Library/Kelmar",
        "label: Background services",
        "label: The API and the Worker, which start when you log in",
        "label: Settings and permissions",
        "label: Preferences, window layout, app logs, caches and privacy permissions",
        "heading: Your data",
        "label: Delete Kelmar data, " + size,
        "check box: Delete Kelmar data (on)",
        "label: Cases, imported documents, exports, AI models and logs. You can't undo this.",
        "push button: Choose folders",
        "label: Asks for an administrator's password",
        "push button: Quit",
        "push button: Uninstall",
    }));
    EXPECT_EQ(window().find("label", "Asks for an administrator's password").description(),
              "Kelmar is installed for all users of this Mac, and only an administrator can "
              "remove it.");
}

TEST_F(Window, NoControlHasTheFocusUntilAKeyMovesIt) {
    mac->app(Scope::me, "4.3").dataFolder(Scope::me, "Store", 1000);
    open();
    ASSERT_TRUE(shows("push button: Uninstall"));
    EXPECT_FALSE(focus->element().is(Accessible::focusable) && focus->element().role() != "filler")
        << focus->element().name();
    screen->press("space");
    screen->press("Tab");
    EXPECT_TRUE(focusIsOn("check box: Delete Kelmar data"));
    EXPECT_TRUE(shows("check box: Delete Kelmar data (on)"));
}

TEST_F(Window, TellsWhatEverythingIsToPeopleWhoCannotSeeIt) {
    mac->everything();
    open();
    click("push button", "Choose folders");
    ASSERT_TRUE(shows("push button: Hide folders"));
    std::set<std::string> controls;
    std::map<std::string, std::string> descriptions;
    for (const Accessible& each : window().everything()) {
        // The page holds the focus while nothing on it has it.
        if (each.is(Accessible::focusable) && each.role() != "filler") {
            EXPECT_NE(each.name(), "") << each.role();
            controls.insert(each.role() + ": " + each.name());
            descriptions[each.name()] = each.description();
        }
    }
    EXPECT_EQ(controls,
              (std::set<std::string>{
                  "check box: CDN", "check box: CDN_remote", "check box: Database",
                  "check box: Delete Kelmar data", "check box: Export", "check box: Logs",
                  "check box: Models", "check box: Staging", "check box: Store",
                  "label: Asks for an administrator's password", "push button: Hide folders",
                  "push button: Quit", "push button: Uninstall"}));
    EXPECT_EQ(descriptions["Delete Kelmar data"],
              "Cases, imported documents, exports, AI models and logs. You can't undo this.");
    EXPECT_NE(descriptions["Store"], "") << "what is in it";
    EXPECT_FALSE(window().find("label", "Delete Kelmar data"))
        << "the switch is named, and its name is not read a second time";
    EXPECT_TRUE(shows("label: Store, " + sizeOf({mac->paths().dataRoot(Scope::me) + "/Store"})));
    EXPECT_TRUE(
        shows("label: Staging, " + sizeOf({mac->paths().dataRoot(Scope::allUsers) + "/Staging"})));
}

} // namespace
} // namespace kelmar
