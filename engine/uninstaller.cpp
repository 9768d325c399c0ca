#include "engine/uninstaller.hpp"

#include "admin/current_user_runner.hpp"
#include "admin/password_prompt_runner.hpp"

#include <utility>

namespace kelmar {

std::shared_ptr<AdministratorRunner> Uninstaller::usualRunner(const KelmarPaths& paths) {
    if (paths.testRoot) {
        return std::make_shared<CurrentUserRunner>();
    }
    return std::make_shared<PasswordPromptRunner>();
}

Uninstaller::Uninstaller(KelmarPaths where, Inventory found, std::set<std::string> chosenData,
                         std::shared_ptr<AdministratorRunner> runner)
    : paths(std::move(where)),
      inventory(std::move(found)),
      selectedData(std::move(chosenData)),
      administrator(runner ? std::move(runner) : usualRunner(paths)) {}

} // namespace kelmar
