#pragma once

#include "ui/menu.hpp"

#include <vector>

#import <AppKit/AppKit.h>

namespace kelmar {

/// Makes `menus` the menu bar of `application`; the first is the application's own. No item has a
/// target, so each goes to whatever has the keyboard's focus and then to the application, and is
/// grey while neither answers it.
void installMainMenu(NSApplication* application, const std::vector<Menu>& menus);

} // namespace kelmar
