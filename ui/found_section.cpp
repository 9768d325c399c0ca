#include "system/text/strings.hpp"
#include "ui/sections.hpp"

#include <algorithm>

namespace kelmar {

namespace {

std::string title(const Installation& installation) {
    const std::string whom =
        installation.scope == Scope::me ? "installed for you" : "installed for all users";
    if (!installation.app) {
        return "Kelmar's services, " + whom + " (the app is already gone)";
    }
    const std::string version = installation.appVersion ? " " + *installation.appVersion : "";
    return "Kelmar" + version + ", " + whom;
}

std::string detail(const Installation& installation, const KelmarPaths& paths) {
    std::vector<std::string> places;
    for (const std::optional<std::string>& path : {installation.app, installation.services}) {
        if (path) {
            places.push_back(paths.display(*path));
        }
    }
    return places.empty() ? "Its LaunchAgents and install records" : joined(places, " and ");
}

FoundRow::Icon icon(const Installation& installation) {
    if (installation.app) {
        return FoundRow::Image{*installation.app};
    }
    return FoundRow::Symbol{"gearshape"};
}

} // namespace

FoundSection foundSection(const Inventory& inventory, const KelmarPaths& paths) {
    FoundSection section{{"Found on this Mac"}, {}};
    for (const Installation& installation : inventory.installations) {
        section.rows.push_back(
            {icon(installation), title(installation), detail(installation, paths)});
    }
    const bool running = !inventory.loadedServices.empty();
    if (running || std::any_of(inventory.installations.begin(), inventory.installations.end(),
                               [](const Installation& each) { return !each.agents.empty(); })) {
        section.rows.push_back({FoundRow::Symbol{"gearshape.2"}, "Background services",
                                running ? "The API and the Worker, running now"
                                        : "The API and the Worker, which start when you log in"});
    }
    if (!inventory.settings.empty() || !inventory.keychainItems.empty() ||
        !inventory.installations.empty()) {
        section.rows.push_back(
            {FoundRow::Symbol{"slider.horizontal.3"}, "Settings and permissions",
             "Preferences, window layout, app logs, caches and privacy permissions"});
    }
    return section;
}

} // namespace kelmar
