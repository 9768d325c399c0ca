#include "engine/uninstaller.hpp"

#include "admin/current_user_runner.hpp"
#include "admin/password_prompt_runner.hpp"

#include <utility>

namespace kelmar {

namespace {

std::shared_ptr<AdministratorRunner> usualRunner(bool underTestRoot) {
    if (underTestRoot) {
        return std::make_shared<CurrentUserRunner>();
    }
    return std::make_shared<PasswordPromptRunner>();
}

} // namespace

Uninstaller::Uninstaller(KelmarPaths where, Inventory found, std::set<std::string> chosenData,
                         std::shared_ptr<AdministratorRunner> runner)
    : paths(std::move(where)),
      inventory(std::move(found)),
      selectedData(std::move(chosenData)),
      administrator(runner ? std::move(runner) : usualRunner(paths.testRoot.has_value())) {}

} // namespace kelmar

std::size_t std::hash<kelmar::Uninstaller::Failure>::operator()(
    const kelmar::Uninstaller::Failure& failure) const noexcept {
    const std::hash<std::string> text;
    // The factor keeps a path and a reason that change places apart.
    constexpr std::size_t factor = 31;
    return text(failure.path) * factor + text(failure.reason);
}
