#include "ui/menu.hpp"

namespace kelmar {

std::vector<Menu> mainMenu() {
    return {
        {"Kelmar Uninstaller",
         {MenuItem{"About Kelmar Uninstaller", MenuAction::about}, std::nullopt,
          MenuItem{"Hide Kelmar Uninstaller", MenuAction::hide, 'h'},
          MenuItem{"Hide Others", MenuAction::hideOthers, 'h', true},
          MenuItem{"Show All", MenuAction::showAll}, std::nullopt,
          MenuItem{"Quit Kelmar Uninstaller", MenuAction::quit, 'q'}}},
        {"Edit",
         {MenuItem{"Copy", MenuAction::copy, 'c'},
          MenuItem{"Select All", MenuAction::selectAll, 'a'}}},
        {"Window", {MenuItem{"Minimize", MenuAction::minimize, 'm'}}, true},
    };
}

} // namespace kelmar
