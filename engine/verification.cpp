#include "discovery/scanner.hpp"
#include "engine/uninstaller.hpp"
#include "system/files/files.hpp"

#include <algorithm>
#include <iterator>

namespace kelmar {

namespace {

/// The paths that should be gone but exist. Data that was to be kept is no leftover.
std::vector<std::string> leftovers(const Inventory& after,
                                   const std::set<std::string>& selectedData) {
    std::vector<std::string> paths;
    for (const Installation& installation : after.installations) {
        const std::vector<std::string> more = installation.paths();
        paths.insert(paths.end(), more.begin(), more.end());
    }
    paths.insert(paths.end(), after.settings.begin(), after.settings.end());
    for (const DataFolder& folder : after.dataFolders()) {
        if (selectedData.contains(folder.path)) {
            paths.push_back(folder.path);
        }
    }
    return paths;
}

} // namespace

std::vector<Uninstaller::Failure> Uninstaller::verify() const {
    const Inventory after = Scanner::scan(paths);
    std::vector<Failure> left;
    std::copy_if(failures.begin(), failures.end(), std::back_inserter(left),
                 [](const Failure& failure) {
                     return !failure.path.starts_with('/') || exists(failure.path);
                 });
    for (const std::string& path : leftovers(after, selectedData)) {
        const bool known = std::any_of(left.begin(), left.end(), [&path](const Failure& failure) {
            return failure.path == path;
        });
        if (!known) {
            left.push_back({path, "it is still there"});
        }
    }
    for (const Installation& installation : after.installations) {
        for (const std::string& identifier : installation.receipts) {
            left.push_back({"Install record " + identifier, "pkgutil still lists it"});
        }
    }
    for (const std::string& label : after.loadedServices) {
        left.push_back({label, "the service is still loaded"});
    }
    for (const std::string& name : after.keychainItems) {
        left.push_back({"Keychain item " + name, "it is still in the keychain"});
    }
    return left;
}

} // namespace kelmar
