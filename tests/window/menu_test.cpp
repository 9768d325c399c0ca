#include "tests/window/window_fixture.hpp"

namespace kelmar {
namespace {

using test::Accessible;
using test::Window;

TEST_F(Window, HasTheMenuOfAProgramWithOneWindow) {
    open();
    Lines lines;
    for (const Accessible& menu : menus()) {
        lines.push_back(menu.name());
        for (const Accessible& item : itemsOf(menu)) {
            lines.push_back(item.role() == "separator" ? "  -"
                                                       : "  " + item.name() + ", " + item.key());
        }
    }
    EXPECT_EQ(lines, (Lines{
                         "Kelmar Uninstaller",
                         "  About Kelmar Uninstaller, ",
                         "  -",
                         "  Hide Kelmar Uninstaller, Ctrl+H",
                         "  Hide Others, Ctrl+Alt+H",
                         "  Show All, ",
                         "  -",
                         "  Quit Kelmar Uninstaller, Ctrl+Q",
                         "Edit",
                         "  Copy, Ctrl+C",
                         "  Select All, Ctrl+A",
                         "Window",
                         "  Minimize, Ctrl+M",
                         "  -",
                         "  Kelmar Uninstaller, ",
                     }));
}

TEST_F(Window, ItsMenuIsUsedByTheMouseAndByKeys) {
    open();
    click("menu item", "Kelmar Uninstaller");
    ASSERT_TRUE(eventually([this] { return screen->windows().size() == 2; }));
    EXPECT_FALSE(window().find("menu item", "Hide Others").is(Accessible::enabled))
        << "other programs' windows are theirs";
    screen->press("Escape");
    ASSERT_TRUE(eventually([this] { return screen->windows().size() == 1; }));
    EXPECT_FALSE(running->hasEnded()) << "Escape closed the menu and nothing else";
    click("menu item", "Kelmar Uninstaller");
    ASSERT_TRUE(eventually([this] { return screen->windows().size() == 2; }));
    screen->press("Up");
    screen->press("Return");
    expectEnd();
}

TEST_F(Window, AboutTellsTheVersionAndDoesNotKeepTheProgramRunning) {
    open();
    click("menu item", "Kelmar Uninstaller");
    ASSERT_TRUE(eventually([this] { return screen->windows().size() == 2; }));
    click("menu item", "About Kelmar Uninstaller");
    Accessible about;
    ASSERT_TRUE(eventually([&] {
        const auto program = test::AccessibilityBus::instance().program(running->process());
        for (const Accessible& each : program.children()) {
            if (each.name() == "About Kelmar Uninstaller") {
                about = each;
            }
        }
        return static_cast<bool>(about);
    }));
    EXPECT_TRUE(about.find("label", "Kelmar Uninstaller"));
    EXPECT_TRUE(eventually([this] { return screen->windows().size() == 2; }))
        << "the menu is gone, the panel is there";
    screen->askToClose(onScreen());
    expectEnd();
}

} // namespace
} // namespace kelmar
