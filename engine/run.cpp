#include "engine/uninstaller.hpp"
#include "system/mac_tools/pkgutil.hpp"

#include <utility>

namespace kelmar {

namespace {

/// Where processes of the current user's installation run from.
std::vector<std::string> programFolders(const Installation& installation) {
    std::vector<std::string> folders;
    for (const std::optional<std::string>& folder : {installation.app, installation.services}) {
        if (folder) {
            folders.push_back(*folder);
        }
    }
    return folders;
}

} // namespace

void Uninstaller::closeKelmar() {
    const std::optional<Installation> mine = inventory.mine();
    quitKelmar();
    stopServices();
    stopProcesses(mine ? programFolders(*mine) : std::vector<std::string>{});
    resetPermissions();
}

void Uninstaller::cleanAccount() {
    if (const std::optional<Installation> mine = inventory.mine()) {
        for (const std::string& path : mine->paths()) {
            remove(path);
        }
        for (const std::string& identifier : mine->receipts) {
            // The administrator's script may have forgotten it already, and pkgutil complains about
            // one that it does not know.
            if (!paths.testRoot && Pkgutil::hasReceipt(identifier, paths.home)) {
                forgetReceipt(identifier);
            }
        }
    }
    removeSettings();
}

void Uninstaller::deleteData() {
    for (const DataFolder& folder : mySelectedData()) {
        remove(folder.path);
    }
    removeIfEmpty(paths.dataRoot(Scope::me));
}

bool Uninstaller::perform(Stage stage) {
    switch (stage) {
    case Stage::close:
        closeKelmar();
        break;
    case Stage::administrator:
        return runAsAdministrator(administratorArguments().value_or(std::vector<std::string>{})) !=
               AdministratorOutcome::cancelled;
    case Stage::account:
        cleanAccount();
        break;
    case Stage::data:
        deleteData();
        break;
    }
    return true;
}

Uninstaller::Outcome Uninstaller::run(Emit callback) {
    emit = std::move(callback);
    for (const TitledStage& titled : stages()) {
        emit(StageStarted{titled.stage});
        if (!perform(titled.stage)) {
            restartStoppedServices();
            return Cancelled{};
        }
        emit(StageFinished{titled.stage});
    }
    return Finished{verify()};
}

} // namespace kelmar
