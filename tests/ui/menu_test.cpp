#include "ui/menu.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace kelmar {
namespace {

MenuItem item(const char* title, MenuAction action, char key = 0, bool option = false) {
    return {title, action, key, option};
}

TEST(MainMenu, HasThreeMenusAndNoMore) {
    const std::vector<Menu> expected{
        {"Kelmar Uninstaller",
         {item("About Kelmar Uninstaller", MenuAction::about), std::nullopt,
          item("Hide Kelmar Uninstaller", MenuAction::hide, 'h'),
          item("Hide Others", MenuAction::hideOthers, 'h', true),
          item("Show All", MenuAction::showAll), std::nullopt,
          item("Quit Kelmar Uninstaller", MenuAction::quit, 'q')},
         false},
        {"Edit",
         {item("Copy", MenuAction::copy, 'c'), item("Select All", MenuAction::selectAll, 'a')},
         false},
        {"Window", {item("Minimize", MenuAction::minimize, 'm')}, true},
    };
    EXPECT_EQ(mainMenu(), expected);
}

} // namespace
} // namespace kelmar
