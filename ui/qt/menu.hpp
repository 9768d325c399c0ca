#pragma once

#include "ui/menu.hpp"

#include <QMenuBar>
#include <functional>
#include <vector>

namespace kelmar {

/// Fills `bar` with `menus`. Items that nothing here answers to can't be chosen. `perform` gets the
/// others' actions, but for copying and selecting, which go to the widget that has the focus.
void fillMenuBar(QMenuBar& bar, const std::vector<Menu>& menus,
                 const std::function<void(MenuAction)>& perform);

} // namespace kelmar
