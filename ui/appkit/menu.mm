#include "ui/appkit/menu.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/app_delegate.h"

namespace kelmar {

namespace {

SEL selectorOf(MenuAction action) {
    switch (action) {
    case MenuAction::about:
        return @selector(showAboutPanel:);
    case MenuAction::hide:
        return @selector(hide:);
    case MenuAction::hideOthers:
        return @selector(hideOtherApplications:);
    case MenuAction::showAll:
        return @selector(unhideAllApplications:);
    case MenuAction::copy:
        return @selector(copy:);
    case MenuAction::selectAll:
        return @selector(selectAll:);
    case MenuAction::minimize:
        return @selector(performMiniaturize:);
    case MenuAction::quit:
        break;
    }
    return @selector(terminate:);
}

NSMenuItem* makeItem(const MenuItem& item) {
    const std::string key = item.key == 0 ? "" : std::string(1, item.key);
    NSMenuItem* const made = [[[NSMenuItem alloc] initWithTitle:foundationText(item.title)
                                                         action:selectorOf(item.action)
                                                  keyEquivalent:foundationText(key)] autorelease];
    if (item.key != 0) {
        const NSEventModifierFlags option = item.option ? NSEventModifierFlagOption : 0;
        [made setKeyEquivalentModifierMask:NSEventModifierFlagCommand | option];
    }
    return made;
}

NSMenu* makeMenu(const std::string& title, const Menu& menu) {
    NSMenu* const made = [[[NSMenu alloc] initWithTitle:foundationText(title)] autorelease];
    for (const std::optional<MenuItem>& item : menu.items) {
        [made addItem:item ? makeItem(*item) : [NSMenuItem separatorItem]];
    }
    return made;
}

} // namespace

void installMainMenu(NSApplication* application, const std::vector<Menu>& menus) {
    NSMenu* const bar = [[[NSMenu alloc] initWithTitle:@""] autorelease];
    for (const Menu& menu : menus) {
        NSMenuItem* const item = [[[NSMenuItem alloc] initWithTitle:foundationText(menu.title)
                                                             action:nullptr
                                                      keyEquivalent:@""] autorelease];
        // The system writes the application's name over the first one.
        NSMenu* const submenu = makeMenu(&menu == &menus.front() ? "" : menu.title, menu);
        [item setSubmenu:submenu];
        [bar addItem:item];
        if (menu.listsWindows) {
            [application setWindowsMenu:submenu];
        }
    }
    [application setMainMenu:bar];
}

} // namespace kelmar
