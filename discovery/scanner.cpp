#include "discovery/scanner.hpp"

#include "discovery/app_identity.hpp"
#include "discovery/identifiers.hpp"
#include "system/files/files.hpp"
#include "system/mac_tools/disk_usage.hpp"
#include "system/mac_tools/keychain.hpp"
#include "system/mac_tools/launchctl.hpp"
#include "system/mac_tools/pkgutil.hpp"
#include "system/process/contract.hpp"
#include "system/process/running_applications.hpp"
#include "system/property_list/property_list.hpp"

#include <algorithm>
#include <limits>
#include <string_view>

namespace kelmar::Scanner {

namespace {

std::optional<std::string> ifExists(const std::string& path) {
    return exists(path) ? std::optional(path) : std::nullopt;
}

std::vector<std::string> existing(const std::vector<std::string>& paths) {
    std::vector<std::string> found;
    std::copy_if(paths.begin(), paths.end(), std::back_inserter(found), exists);
    return found;
}

void append(std::vector<std::string>& list, const std::vector<std::string>& more) {
    list.insert(list.end(), more.begin(), more.end());
}

std::vector<std::string> receipts(Scope scope, const KelmarPaths& paths) {
    const std::optional<std::string> volume =
        scope == Scope::me ? std::optional(paths.home) : std::nullopt;
    std::vector<std::string> known;
    for (const std::string_view identifier : {appPackageIdentifier, backendIdentifier}) {
        if (Pkgutil::hasReceipt(identifier, volume)) {
            known.emplace_back(identifier);
        }
    }
    return known;
}

std::vector<std::string> loadedServices() {
    std::vector<std::string> loaded;
    for (const std::string_view label : {apiAgentLabel, workerAgentLabel}) {
        if (Launchctl::isLoaded(label)) {
            loaded.emplace_back(label);
        }
    }
    return loaded;
}

std::vector<std::string> keychainItems() {
    std::vector<std::string> found;
    for (const char* const service : {"Kelmar Safe Storage", "Quobrintal Safe Storage"}) {
        if (Keychain::hasItem(service)) {
            found.emplace_back(service);
        }
    }
    return found;
}

/// The entries of `folder` whose names begin with the former bundle identifier, sorted by name.
std::vector<std::string> named(const std::string& folder) {
    std::vector<std::string> found;
    for (const std::string& name : sortedNames(folder).value_or(std::vector<std::string>{})) {
        if (name.starts_with(legacyBundleIdentifier)) {
            found.push_back(folder);
            found.back().append("/").append(name);
        }
    }
    return found;
}

} // namespace

Installation installation(Scope scope, const KelmarPaths& paths) {
    Installation found;
    found.scope = scope;
    found.app = ifExists(paths.app(scope));
    if (found.app) {
        found.appVersion =
            propertyListString(*found.app + "/Contents/Info.plist", "CFBundleShortVersionString");
    }
    found.services = ifExists(paths.services(scope));
    found.agents = existing(paths.agents(scope));
    if (!paths.testRoot) {
        found.receipts = receipts(scope, paths);
    }
    if (scope == Scope::me) {
        const std::vector<std::string> all = found.paths();
        found.needsAdministrator = !std::all_of(all.begin(), all.end(), ownedByMe);
    }
    return found;
}

std::vector<std::string> settings(const KelmarPaths& paths) {
    const std::string library = paths.home + "/Library/";
    std::vector<std::string> all =
        existing({library + "Application Support/Kelmar",
                  library + "Application Support/Quobrintal", library + "Logs/Kelmar"});
    for (const char* const folder : {"Preferences", "Preferences/ByHost", "Saved Application State",
                                     "Caches", "HTTPStorages", "WebKit"}) {
        append(all, named(library + folder));
    }
    const std::string temporary = paths.temporaryDirectory + "/";
    append(all, existing({temporary + "Kelmar", temporary + "Kelmar_temp",
                          temporary + "sd-soffice-diagram"}));
    return all;
}

std::optional<DataRoot> dataRoot(Scope scope, const KelmarPaths& paths,
                                 std::chrono::milliseconds within) {
    DataRoot root;
    root.scope = scope;
    root.path = paths.dataRoot(scope);
    const std::vector<std::string> names =
        sortedNamesWithin(within, root.path).value_or(std::vector<std::string>{});
    for (const DataFolder::Known& known : DataFolder::known) {
        if (std::binary_search(names.begin(), names.end(), known.name)) {
            const std::string name(known.name);
            root.folders.push_back({name, std::string(known.summary), root.path + "/" + name, {}});
        }
    }
    if (root.folders.empty()) {
        return std::nullopt;
    }
    std::copy_if(names.begin(), names.end(), std::back_inserter(root.otherItems),
                 [](const std::string& name) {
                     return !DataFolder::isKnown(name) && !KelmarPaths::isIgnorable(name);
                 });
    return root;
}

Inventory scan(const KelmarPaths& paths) {
    Inventory inventory;
    for (const Scope scope : {Scope::allUsers, Scope::me}) {
        const Installation found = installation(scope, paths);
        if (!found.paths().empty() || !found.receipts.empty()) {
            inventory.installations.push_back(found);
        }
    }
    if (!paths.testRoot) {
        inventory.appRunning = !runningApplications(appIdentity(paths)).empty();
        inventory.loadedServices = loadedServices();
        inventory.keychainItems = keychainItems();
    }
    inventory.settings = settings(paths);
    for (const Scope scope : {Scope::me, Scope::allUsers}) {
        if (const std::optional<DataRoot> root = dataRoot(scope, paths)) {
            inventory.dataRoots.push_back(*root);
        }
    }
    return inventory;
}

std::optional<std::int64_t> size(const std::string& path) {
    constexpr std::int64_t bytesPerKibibyte = 1024;
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max() / bytesPerKibibyte;
    const std::optional<std::int64_t> total = DiskUsage::kibibytes(path);
    if (!total) {
        return std::nullopt;
    }
    if (*total > limit || *total < -limit - 1) {
        brokenContract("du reported a size that no disk has");
    }
    return *total * bytesPerKibibyte;
}

} // namespace kelmar::Scanner
