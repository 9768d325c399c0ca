#include "admin/administrator_runner.hpp"
#include "admin/status_folder.hpp"
#include "admin/status_line.hpp"
#include "admin/status_tail.hpp"
#include "engine/uninstaller.hpp"
#include "system/contract.hpp"
#include "system/resources.hpp"

#include <exception>

namespace kelmar {

namespace {

/// The chosen folders of the data roots of one scope.
std::vector<DataFolder> selectedFolders(const Uninstaller& uninstaller, Scope scope) {
    std::vector<DataFolder> selected;
    for (const DataRoot& root : uninstaller.inventory.dataRoots) {
        for (const DataFolder& folder : root.folders) {
            if (root.scope == scope && uninstaller.selectedData.contains(folder.path)) {
                selected.push_back(folder);
            }
        }
    }
    return selected;
}

bool hasFilesOfTheSystem(const Inventory& inventory) {
    const std::optional<Installation> mine = inventory.mine();
    return mine && mine->needsAdministrator;
}

} // namespace

std::optional<std::vector<std::string>> Uninstaller::administratorArguments() const {
    std::vector<std::string> arguments;
    if (inventory.allUsers()) {
        arguments.emplace_back("--all-users");
    }
    for (const DataFolder& folder : selectedFolders(*this, Scope::allUsers)) {
        arguments.insert(arguments.end(), {"--shared-data", folder.path});
    }
    if (hasFilesOfTheSystem(inventory)) {
        arguments.insert(arguments.end(), {"--home", paths.home});
    }
    if (arguments.empty()) {
        return std::nullopt;
    }
    if (paths.testRoot) {
        arguments.insert(arguments.end(), {"--test-root", paths.systemRoot});
    }
    return arguments;
}

std::string Uninstaller::administratorReason() const {
    const std::string start = "Kelmar Uninstaller needs an administrator's password to ";
    if (inventory.allUsers()) {
        return start + "remove Kelmar, which is installed for all users of this Mac.";
    }
    if (hasFilesOfTheSystem(inventory)) {
        return start + "remove files of Kelmar that belong to the system.";
    }
    return start + "delete the Kelmar data shared by all users of this Mac.";
}

std::vector<DataFolder> Uninstaller::mySelectedData() const {
    return selectedFolders(*this, Scope::me);
}

Uninstaller::AdministratorOutcome
Uninstaller::runAsAdministrator(const std::vector<std::string>& arguments) {
    const std::optional<std::string> script = resourcePath("uninstall-as-admin.sh");
    if (!script) {
        failures.push_back({"uninstall-as-admin.sh", "missing from Kelmar Uninstaller.app"});
        return AdministratorOutcome::failed;
    }
    const StatusFolder folder(paths.temporaryDirectory);
    if (folder.error()) {
        failures.push_back({folder.path(), folder.error().message()});
        return AdministratorOutcome::failed;
    }
    doing(paths.testRoot ? "Running the administrator step"
                         : "Waiting for an administrator's password");

    // The tail's last callback has returned before this function does, so `this` outlives them all.
    StatusTail tail(folder.file(), [this](const std::string& line) { handleStatusLine(line); });
    tail.start();
    std::vector<std::string> all{"--status", folder.file()};
    all.insert(all.end(), arguments.begin(), arguments.end());
    AdministratorOutcome outcome = AdministratorOutcome::finished;
    std::string trouble;
    try {
        administrator->run(*script, all, administratorReason());
    } catch (const AdministratorError& error) {
        outcome = error.kind() == AdministratorError::Kind::cancelled
                      ? AdministratorOutcome::cancelled
                      : AdministratorOutcome::failed;
        trouble = error.what();
    } catch (const std::exception& error) {
        outcome = AdministratorOutcome::failed;
        trouble = error.what();
    }
    tail.stop();

    if (outcome == AdministratorOutcome::cancelled) {
        log("No administrator's password was given; nothing was removed.");
    } else if (outcome == AdministratorOutcome::failed) {
        failures.push_back({"Administrator step", trouble});
    } else if (!tail.sawDone()) {
        failures.push_back({"Administrator step", "it stopped before it finished"});
    }
    return outcome;
}

void Uninstaller::handleStatusLine(std::string_view line) {
    const std::optional<StatusLine> parsed = parseStatusLine(line);
    if (!parsed) {
        return;
    }
    switch (parsed->keyword) {
    case StatusLine::Keyword::doing:
        doing("Removing " + paths.display(parsed->subject));
        break;
    case StatusLine::Keyword::ok:
        log("Removed " + paths.display(parsed->subject));
        break;
    case StatusLine::Keyword::log:
        log(parsed->subject);
        break;
    case StatusLine::Keyword::fail:
        if (parsed->subject.empty()) {
            brokenContract("the administrator's script wrote a FAIL line without a path");
        }
        failures.push_back({parsed->subject, parsed->reason});
        log("Could not remove " + paths.display(parsed->subject) + ": " + parsed->reason);
        break;
    }
}

} // namespace kelmar
