#include "admin/status_folder.hpp"
#include "engine/uninstaller.hpp"
#include "system/mac_tools/pkgutil.hpp"
#include "system/process/activity.hpp"

#include <new>
#include <utility>

namespace kelmar {

namespace {

/// The folders from which processes of the current user's installation run.
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
            // The administrator's script may have forgotten the receipt already, and pkgutil
            // complains about an unknown one.
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

bool Uninstaller::ends() {
    ended_ = ended_ || (shouldEnd_ && shouldEnd_());
    return ended_;
}

void Uninstaller::sweepTemporaryFolder(const KelmarPaths& paths) {
    StatusFolder::sweep(paths.temporaryDirectory);
}

Uninstaller::Outcome Uninstaller::run(Emit callback, ShouldEnd shouldEnd) {
    const Failure shortage{"Kelmar Uninstaller", "memory ran out before it was done"};
    // Allocated now, while there is memory.
    Finished withoutMemory{{shortage}};
    try {
        emit = std::move(callback);
        shouldEnd_ = std::move(shouldEnd);
        return runStages();
    } catch (const std::bad_alloc&) {
        try {
            if (!removing_) {
                restartStoppedServices();
            }
            failures.push_back(shortage);
            return Finished{verify()};
        } catch (const std::bad_alloc&) {
            return withoutMemory;
        }
    }
}

Uninstaller::Outcome Uninstaller::runStages() {
    const std::shared_ptr<void> activity = beginActivity("Uninstalling Kelmar");
    sweepTemporaryFolder(paths);
    const std::vector<TitledStage> all = stages();
    for (const TitledStage& titled : all) {
        emit(StageStarted{titled.stage});
        const bool cancelled = !perform(titled.stage);
        const bool isLast = &titled == &all.back();
        if (cancelled || ended_ || (!isLast && ends())) {
            if (!removing_) {
                restartStoppedServices();
            }
            // The signal that ends the run may have ended the password prompt as well.
            return ends() ? Outcome(Interrupted{verify()}) : Outcome(Cancelled{});
        }
        emit(StageFinished{titled.stage});
    }
    // The signal that ends the run may have ended a tool during the last removal.
    const bool ending = ends();
    std::vector<Failure> left = verify();
    if (ending && !left.empty()) {
        return Interrupted{std::move(left)};
    }
    return Finished{std::move(left)};
}

} // namespace kelmar
