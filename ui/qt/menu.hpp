#pragma once

#include "ui/menu.hpp"

#include <QMenuBar>
#include <functional>
#include <vector>

namespace kelmar {

/// The handlers of menu items.
struct MenuActions {
    /// Receives all actions except copying and selecting, which go to the widget that has the
    /// focus.
    std::function<void(MenuAction)> perform;
    /// Returns true if `perform` would have an effect now.
    std::function<bool(MenuAction)> offers = [](MenuAction /*action*/) { return true; };
};

/// Fills `bar` with `menus`. Items without a handler on this platform are disabled.
void fillMenuBar(QMenuBar& bar, const std::vector<Menu>& menus, const MenuActions& actions);

} // namespace kelmar
