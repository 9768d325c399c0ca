#include "admin/administrator_runner.hpp"
#include "admin/script_request.hpp"
#include "admin/status_folder.hpp"
#include "admin/status_line.hpp"
#include "admin/status_tail.hpp"
#include "discovery/unreadable_folder.hpp"
#include "engine/uninstaller.hpp"
#include "system/files/files.hpp"
#include "system/process/contract.hpp"
#include "system/process/resources.hpp"
#include "system/text/strings.hpp"

#include <exception>

namespace kelmar {

std::optional<std::vector<std::string>> Uninstaller::administratorArguments() const {
    const AdministratorReasons reasons = inventory.administratorReasons(selectedData);
    std::vector<std::string> arguments;
    if (reasons.allUsers) {
        arguments.emplace_back("--all-users");
    }
    for (const DataFolder& folder : reasons.sharedData) {
        arguments.insert(arguments.end(), {"--shared-data", folder.path});
    }
    if (reasons.ownFiles) {
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
    const AdministratorReasons reasons = inventory.administratorReasons(selectedData);
    return kelmar::administratorReason(reasons.allUsers, reasons.ownFiles);
}

std::vector<DataFolder> Uninstaller::mySelectedData() const {
    return inventory.selected(selectedData, Scope::me);
}

void Uninstaller::logWhatNoPasswordHelps() const {
    const AdministratorReasons reasons = inventory.administratorReasons(selectedData);
    const std::string root = paths.dataRoot(Scope::allUsers);
    if (!reasons.sharedData.empty() && isLink(root)) {
        log(paths.display(root) + ": it is a link, and the administrator's part follows none. "
                                  "The data there will stay.");
    }
    if (!reasons.ownFiles) {
        return;
    }
    for (const std::string& path : inventory.mine()->paths()) {
        if (const std::optional<std::string> folder = unreadableFolderOfMine(path)) {
            log(paths.display(*folder) + ": it is yours, but you may not read it. "
                                         "It counts as somebody else's and may stay.");
        }
    }
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
    logWhatNoPasswordHelps();

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
        for (const std::string& line : nonEmptyLines(trouble)) {
            log(line);
        }
        log("No administrator's password was given; nothing was removed.");
    } else if (outcome == AdministratorOutcome::failed) {
        failures.push_back({"Administrator step", trouble});
    } else if (!tail.sawDone()) {
        failures.push_back({"Administrator step", "it stopped before it finished"});
    } else if (!tail.isSound()) {
        failures.push_back({"Administrator step", "not everything that it said could be read"});
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
        removing_ = true;
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
        adviseOnAppManagement(parsed->subject, parsed->reason);
        break;
    }
}

} // namespace kelmar
