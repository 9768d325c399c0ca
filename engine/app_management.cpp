#include "engine/uninstaller.hpp"

#include <string_view>
#include <utility>

namespace kelmar {

namespace {

constexpr std::string_view refused = "Operation not permitted"; // EPERM, in rm(1)'s words

/// Returns true if `text` names an app, or something inside one.
bool namesAnApp(std::string_view text) {
    return text.ends_with(".app") || text.find(".app/") != std::string_view::npos ||
           text.find(".app:") != std::string_view::npos;
}

} // namespace

void Uninstaller::adviseOnAppManagement(std::string_view path, std::string_view reason) {
    const bool applies = !appManagement.empty() && reason.find(refused) != std::string_view::npos &&
                         (namesAnApp(path) || namesAnApp(reason));
    if (applies && !std::exchange(hasAdvisedOnAppManagement_, true)) {
        log("macOS may keep one program from removing another maker's app. Allow Kelmar "
            "Uninstaller, or Terminal if it was started there, in " +
            appManagement + ", and run it again.");
    }
}

} // namespace kelmar
