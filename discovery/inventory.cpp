#include "discovery/inventory.hpp"

#include <algorithm>
#include <iterator>

namespace kelmar {

namespace {

std::optional<Installation> firstOf(Scope scope, const std::vector<Installation>& installations) {
    const auto found =
        std::find_if(installations.begin(), installations.end(),
                     [scope](const Installation& one) { return one.scope == scope; });
    return found == installations.end() ? std::nullopt : std::optional(*found);
}

} // namespace

std::vector<std::string> Installation::paths() const {
    std::vector<std::string> all;
    for (const std::optional<std::string>& path : {app, services}) {
        if (path) {
            all.push_back(*path);
        }
    }
    all.insert(all.end(), agents.begin(), agents.end());
    return all;
}

bool DataFolder::isKnown(std::string_view name) {
    return std::any_of(known.begin(), known.end(),
                       [name](const Known& one) { return one.name == name; });
}

bool Inventory::isEmpty() const {
    // A data root is present only if it has folders.
    return installations.empty() && loadedServices.empty() && settings.empty() &&
           keychainItems.empty() && dataFolders().empty();
}

std::vector<DataFolder> Inventory::dataFolders() const {
    std::vector<DataFolder> all;
    for (const DataRoot& root : dataRoots) {
        all.insert(all.end(), root.folders.begin(), root.folders.end());
    }
    return all;
}

std::optional<Installation> Inventory::allUsers() const {
    return firstOf(Scope::allUsers, installations);
}

std::optional<Installation> Inventory::mine() const {
    return firstOf(Scope::me, installations);
}

std::vector<DataFolder> Inventory::selected(const std::set<std::string>& chosen,
                                            std::optional<Scope> scope) const {
    std::vector<DataFolder> list;
    for (const DataRoot& root : dataRoots) {
        if (!scope || root.scope == *scope) {
            std::copy_if(
                root.folders.begin(), root.folders.end(), std::back_inserter(list),
                [&chosen](const DataFolder& folder) { return chosen.contains(folder.path); });
        }
    }
    return list;
}

AdministratorReasons Inventory::administratorReasons(const std::set<std::string>& deleting) const {
    const std::optional<Installation> own = mine();
    return {allUsers().has_value(), own && own->needsAdministrator,
            selected(deleting, Scope::allUsers)};
}

bool Inventory::needsAdministrator(const std::set<std::string>& deleting) const {
    return administratorReasons(deleting).any();
}

} // namespace kelmar
