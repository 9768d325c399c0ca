#include "engine/uninstaller.hpp"
#include "system/shell.hpp"

#include <algorithm>
#include <utility>

namespace kelmar {

namespace {

std::set<Uninstaller::Stage> stagesOf(const Uninstaller& uninstaller) {
    std::set<Uninstaller::Stage> set;
    for (const Uninstaller::TitledStage& titled : uninstaller.stages()) {
        set.insert(titled.stage);
    }
    return set;
}

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

bool isStillRecorded(const std::string& identifier, const std::string& volume) {
    return Shell::run("/usr/sbin/pkgutil", {"--pkg-info", identifier, "--volume", volume}).status ==
           0;
}

} // namespace

Uninstaller::Outcome Uninstaller::run(Emit callback) {
    emit = std::move(callback);
    const std::set<Stage> planned = stagesOf(*this);
    const std::optional<Installation> mine = inventory.mine();

    if (planned.contains(Stage::close)) {
        emit(StageStarted{Stage::close});
        quitKelmar();
        stopServices();
        stopProcesses(mine ? programFolders(*mine) : std::vector<std::string>{});
        resetPermissions();
        emit(StageFinished{Stage::close});
    }
    if (planned.contains(Stage::administrator)) {
        if (const auto arguments = administratorArguments()) {
            emit(StageStarted{Stage::administrator});
            if (runAsAdministrator(*arguments) == AdministratorOutcome::cancelled) {
                restartStoppedServices();
                return Cancelled{};
            }
            emit(StageFinished{Stage::administrator});
        }
    }
    if (planned.contains(Stage::account)) {
        emit(StageStarted{Stage::account});
        if (mine) {
            for (const std::string& path : mine->paths()) {
                remove(path);
            }
            for (const std::string& identifier : mine->receipts) {
                // The administrator's script may have taken it along; an unknown one can't be
                // forgotten.
                if (!paths.testRoot && isStillRecorded(identifier, paths.home)) {
                    forgetReceipt(identifier);
                }
            }
        }
        removeSettings();
        emit(StageFinished{Stage::account});
    }
    if (planned.contains(Stage::data)) {
        emit(StageStarted{Stage::data});
        for (const DataFolder& folder : mySelectedData()) {
            remove(folder.path);
        }
        removeIfEmpty(paths.dataRoot(Scope::me));
        emit(StageFinished{Stage::data});
    }
    return Finished{verify()};
}

} // namespace kelmar
