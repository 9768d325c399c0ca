#include "discovery/identifiers.hpp"
#include "engine/uninstaller.hpp"
#include "system/files.hpp"
#include "system/shell.hpp"
#include "system/text.hpp"

#include <algorithm>

namespace kelmar {

void Uninstaller::remove(const std::string& path) {
    if (!exists(path)) {
        return;
    }
    doing("Removing " + paths.display(path));
    const std::vector<std::string> lines =
        nonEmptyLines(Shell::run("/bin/rm", {"-rf", "--", path}).output);
    if (!exists(path)) {
        log("Removed " + paths.display(path));
        return;
    }
    const std::string reason = lines.empty() ? "it is still there" : lines.front();
    failures.push_back({path, reason});
    log("Could not remove " + paths.display(path) + ": " + reason);
}

void Uninstaller::forgetReceipt(const std::string& identifier) {
    const Shell::Result result =
        Shell::run("/usr/sbin/pkgutil", {"--forget", identifier, "--volume", paths.home});
    if (result.status == 0) {
        log("Removed the install record " + identifier + ".");
    } else {
        failures.push_back({"Install record " + identifier, trimmed(result.output)});
    }
}

void Uninstaller::removeSettings() {
    const std::string identifier(legacyBundleIdentifier);
    const std::string preferences = paths.home + "/Library/Preferences/" + identifier + ".plist";
    const bool hasPreferences = std::find(inventory.settings.begin(), inventory.settings.end(),
                                          preferences) != inventory.settings.end();
    if (!paths.testRoot && hasPreferences) {
        // Else the system's preferences cache, which still knows them, would write the file anew.
        Shell::run("/usr/bin/defaults", {"delete", identifier});
    }
    for (const std::string& path : inventory.settings) {
        remove(path);
    }
    for (const std::string& name : inventory.keychainItems) {
        // Each run deletes one item; several may bear the name, and a keychain that misbehaves has
        // a bound.
        constexpr int limit = 5;
        doing("Removing the keychain item " + name);
        for (int round = 0; round < limit; ++round) {
            if (Shell::run("/usr/bin/security", {"delete-generic-password", "-s", name}).status !=
                0) {
                break;
            }
        }
        log("Removed the keychain item " + name + ".");
    }
}

void Uninstaller::removeIfEmpty(const std::string& path) {
    const std::optional<std::vector<std::string>> names = sortedNames(path);
    if (!names) {
        return;
    }
    std::vector<std::string> kept;
    std::copy_if(names->begin(), names->end(), std::back_inserter(kept),
                 [](const std::string& name) { return !KelmarPaths::isIgnorable(name); });
    if (!kept.empty()) {
        log(paths.display(path) + ": it still holds " + joined(kept, ", ") + ".");
        return;
    }
    for (const std::string& name : *names) {
        removeFile(path + "/" + name);
    }
    remove(path);
}

void Uninstaller::resetPermissions() {
    const bool hasApp = std::any_of(inventory.installations.begin(), inventory.installations.end(),
                                    [](const Installation& one) { return one.app.has_value(); });
    if (paths.testRoot || !hasApp) {
        return;
    }
    doing("Resetting Kelmar's privacy permissions");
    const Shell::Result result =
        Shell::run("/usr/bin/tccutil", {"reset", "All", std::string(legacyBundleIdentifier)});
    log(result.status == 0
            ? "Reset Kelmar's privacy permissions."
            : "Could not reset Kelmar's privacy permissions: " + trimmed(result.output));
}

} // namespace kelmar
