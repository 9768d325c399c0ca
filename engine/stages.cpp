#include "engine/uninstaller.hpp"

namespace kelmar {

std::vector<Uninstaller::TitledStage> Uninstaller::stages() const {
    const std::optional<Installation> mine = inventory.mine();
    std::vector<TitledStage> list;
    if (!inventory.installations.empty() || !inventory.loadedServices.empty() ||
        inventory.appRunning) {
        list.push_back({Stage::close, "Closing Kelmar and its background services"});
    }
    const AdministratorReasons reasons = inventory.administratorReasons(selectedData);
    if (reasons.any()) {
        list.push_back({Stage::administrator,
                        reasons.allUsers   ? "Removing Kelmar for all users of this Mac"
                        : reasons.ownFiles ? "Removing files only an administrator can delete"
                                           : "Deleting the shared Kelmar data"});
    }
    if (mine || !inventory.settings.empty() || !inventory.keychainItems.empty()) {
        list.push_back({Stage::account,
                        mine ? "Removing Kelmar, its settings and permissions from your account"
                             : "Removing Kelmar's settings and permissions from your account"});
    }
    if (!mySelectedData().empty()) {
        list.push_back({Stage::data, "Deleting your Kelmar data"});
    }
    return list;
}

} // namespace kelmar
