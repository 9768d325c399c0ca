#include "discovery/identifiers.hpp"
#include "engine/uninstaller.hpp"
#include "system/files/files.hpp"
#include "system/mac_tools/keychain.hpp"
#include "system/mac_tools/pkgutil.hpp"
#include "system/mac_tools/preferences.hpp"
#include "system/mac_tools/privacy_permissions.hpp"
#include "system/process/shell.hpp"
#include "system/text/strings.hpp"

#include <algorithm>
#include <system_error>

namespace kelmar {

void Uninstaller::remove(const std::string& path) {
    if (!exists(path) || ends()) {
        return;
    }
    removing_ = true;
    doing("Removing " + paths.display(path));
    // A reason is one line, but rm(1) may print one for every file.
    constexpr std::size_t enough = 65536;
    const std::vector<std::string> lines =
        nonEmptyLines(Shell::run("/bin/rm", {"-rf", "--", path}, enough).output);
    if (!exists(path)) {
        log("Removed " + paths.display(path));
        return;
    }
    const std::string reason = lines.empty() ? "it is still there" : lines.front();
    failures.push_back({path, reason});
    log("Could not remove " + paths.display(path) + ": " + reason);
    adviseOnAppManagement(path, reason);
}

void Uninstaller::forgetReceipt(const std::string& identifier) {
    if (ends()) {
        return;
    }
    removing_ = true;
    if (const std::optional<std::string> complaint = Pkgutil::forget(identifier, paths.home)) {
        failures.push_back({"Install record " + identifier, *complaint});
    } else {
        log("Removed the install record " + identifier + ".");
    }
}

void Uninstaller::removeSettings() {
    const std::string identifier(legacyBundleIdentifier);
    const std::string preferences = paths.home + "/Library/Preferences/" + identifier + ".plist";
    const bool hasPreferences = std::find(inventory.settings.begin(), inventory.settings.end(),
                                          preferences) != inventory.settings.end();
    if (!paths.testRoot && hasPreferences && !ends()) {
        removing_ = true;
        // The system's preferences cache would otherwise write the file again.
        Preferences::deleteDomain(identifier);
    }
    for (const std::string& path : inventory.settings) {
        remove(path);
    }
    for (const std::string& name : inventory.keychainItems) {
        // Each run deletes one item. Several may have the name; the limit guards against a keychain
        // that reports success without deleting.
        constexpr int limit = 5;
        if (ends()) {
            return;
        }
        removing_ = true;
        doing("Removing the keychain item " + name);
        for (int round = 0; round < limit; ++round) {
            if (!Keychain::deleteItem(name)) {
                break;
            }
        }
        log("Removed the keychain item " + name + ".");
    }
}

void Uninstaller::removeIfEmpty(const std::string& path) {
    // Something may be saved in the folder after each look. Then rmdir(2) fails, where rm(1) would
    // delete it, and the next look reports what it is.
    constexpr int looks = 3;
    std::error_code error;
    for (int look = 0; look < looks; ++look) {
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
        if (ends()) {
            return;
        }
        removing_ = true;
        for (const std::string& name : *names) {
            removeFile(path + "/" + name);
        }
        if (isLink(path)) {
            remove(path); // the link alone: the folder that it leads to is not Kelmar's
            return;
        }
        if (look == 0) {
            doing("Removing " + paths.display(path));
        }
        error = removeFolder(path);
        if (!error) {
            log("Removed " + paths.display(path));
            return;
        }
    }
    failures.push_back({path, error.message()});
    log("Could not remove " + paths.display(path) + ": " + error.message());
}

void Uninstaller::resetPermissions() {
    const bool hasApp = std::any_of(inventory.installations.begin(), inventory.installations.end(),
                                    [](const Installation& one) { return one.app.has_value(); });
    if (paths.testRoot || !hasApp || ends()) {
        return;
    }
    doing("Resetting Kelmar's privacy permissions");
    const std::optional<std::string> complaint = PrivacyPermissions::reset(legacyBundleIdentifier);
    log(complaint ? "Could not reset Kelmar's privacy permissions: " + *complaint
                  : "Reset Kelmar's privacy permissions.");
}

} // namespace kelmar
