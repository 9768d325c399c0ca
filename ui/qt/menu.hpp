#pragma once

#include "ui/menu.hpp"

#include <QMenuBar>
#include <functional>
#include <vector>

namespace kelmar {

/// What answers to the items of a menu.
struct MenuActions {
    /// Gets the actions, but for copying and selecting, which go to the widget that has the focus.
    std::function<void(MenuAction)> perform;
    /// Whether `perform` would do anything now.
    std::function<bool(MenuAction)> offers = [](MenuAction /*action*/) { return true; };
};

/// Fills `bar` with `menus`. Items that nothing here answers to can't be chosen.
void fillMenuBar(QMenuBar& bar, const std::vector<Menu>& menus, const MenuActions& actions);

} // namespace kelmar
