#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kelmar {

/// The action of a menu item, sent to the widget with the keyboard's focus, then to the
/// application.
enum class MenuAction {
    about,
    hide,
    hideOthers,
    showAll,
    quit,
    copy,
    selectAll,
    minimize,
};

struct MenuItem {
    std::string title;
    MenuAction action = MenuAction::about;
    /// Pressed with the command key (control on systems without one); 0 without a shortcut.
    char key = 0;
    bool option = false; ///< pressed with the option key (alt) as well

    friend bool operator==(const MenuItem&, const MenuItem&) = default;
};

struct Menu {
    std::string title;                          ///< in the menu bar
    std::vector<std::optional<MenuItem>> items; ///< absent: a separator
    bool listsWindows = false;                  ///< the platform adds the open windows to it

    friend bool operator==(const Menu&, const Menu&) = default;
};

/// The menu bar, from left to right.
std::vector<Menu> mainMenu();

} // namespace kelmar
