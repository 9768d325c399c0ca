#include "ui/sections.hpp"

#include <variant>

namespace kelmar {

namespace {

Button quit(ButtonKey key) {
    return {"Quit", Action::quit, key};
}

std::vector<FooterNote> notes(const UninstallerModel::Published& published) {
    const Inventory& inventory = published.inventory;
    std::vector<FooterNote> list;
    const AdministratorReasons reasons = inventory.administratorReasons(published.selectedData);
    if (reasons.any()) {
        list.push_back({"lock.fill", "Asks for an administrator's password",
                        reasons.allUsers
                            ? "Kelmar is installed for all users of this Mac, and only an "
                              "administrator can remove it."
                            : "Some of these files belong to the system, and only an "
                              "administrator can remove them."});
    }
    if (inventory.appRunning) {
        list.push_back({"exclamationmark.circle", "Kelmar is open and will be closed",
                        "Any job Kelmar is running stops."});
    }
    return list;
}

} // namespace

Footer footer(const UninstallerModel::Published& published) {
    Footer footer;
    const auto* const finished = std::get_if<UninstallerModel::Finished>(&published.phase);
    if (std::holds_alternative<UninstallerModel::Ready>(published.phase) &&
        !published.inventory.isEmpty()) {
        footer.notes = notes(published);
        footer.buttons = {quit(ButtonKey::cancelAction),
                          {"Uninstall", Action::uninstallClicked, ButtonKey::defaultAction}};
    } else if (finished != nullptr && !finished->failures.empty()) {
        footer.buttons = {{"Try Again", Action::scan}, quit(ButtonKey::defaultAction)};
    } else {
        footer.buttons = {quit(ButtonKey::defaultAction)};
    }
    if (std::holds_alternative<UninstallerModel::Working>(published.phase)) {
        footer.busy = {"Please keep this window open until it's done."};
        footer.buttons.front().enabled = false;
    }
    return footer;
}

} // namespace kelmar
