#pragma once

#include "discovery/inventory.hpp"
#include "discovery/kelmar_paths.hpp"
#include "tests/support/mac_tree.hpp"
#include "ui/uninstaller_model.hpp"

#include <string>
#include <utility>
#include <vector>

/// Records as a scan gives them, at the places of `paths`; nothing needs to be there.
namespace kelmar::test {

/// The paths of a person's own machine.
inline KelmarPaths machinePaths() {
    return {"", "/Users/ada", "/tmp", std::nullopt};
}

/// The same for all who only look.
inline const KelmarPaths machine = machinePaths();

/// A log of so many lines.
inline LogLines removedLines(int count) {
    LogLines log;
    for (int number = 0; number < count; ++number) {
        log.append("Removed ~/Library/" + std::to_string(number));
    }
    return log;
}

inline Installation installation(const KelmarPaths& paths, Scope scope) {
    Installation one;
    one.scope = scope;
    one.app = paths.app(scope);
    one.appVersion = "4.2.1";
    one.services = paths.services(scope);
    one.agents = paths.agents(scope);
    return one;
}

inline DataFolder dataFolder(const KelmarPaths& paths, Scope scope, const std::string& name) {
    return {name, "What is in " + name, paths.dataRoot(scope) + "/" + name, {}};
}

inline DataRoot dataRoot(const KelmarPaths& paths, Scope scope,
                         const std::vector<std::string>& names,
                         std::vector<std::string> otherItems = {}) {
    DataRoot root{scope, paths.dataRoot(scope), {}, std::move(otherItems)};
    for (const std::string& name : names) {
        root.folders.push_back(dataFolder(paths, scope, name));
    }
    return root;
}

/// An installation and the data folders Store and Logs of the current user.
inline Inventory usualInventory(const KelmarPaths& paths) {
    Inventory inventory;
    inventory.installations = {installation(paths, Scope::me)};
    inventory.dataRoots = {dataRoot(paths, Scope::me, {"Store", "Logs"})};
    return inventory;
}

/// What the model publishes once `inventory` is shown, with none of its data chosen.
inline UninstallerModel::Published readyWith(Inventory inventory) {
    UninstallerModel::Published published;
    published.phase = UninstallerModel::Ready{};
    published.inventory = std::move(inventory);
    return published;
}

} // namespace kelmar::test
