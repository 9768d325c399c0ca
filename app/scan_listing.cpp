#include "app/scan_listing.hpp"

#include "discovery/inventory.hpp"
#include "discovery/scanner.hpp"
#include "discovery/size_in_words.hpp"
#include "system/process/standard_streams.hpp"
#include "system/text/strings.hpp"

#include <string>
#include <vector>

namespace kelmar {

namespace {

const std::string indent = "    ";

/// Names of data folders are ASCII, so a column is a byte.
std::string column(std::string name) {
    constexpr std::size_t width = 12;
    name.resize(width, ' ');
    return name;
}

void printPaths(const std::vector<std::string>& list, const KelmarPaths& paths) {
    for (const std::string& path : list) {
        printLine(indent + paths.display(path));
    }
}

void print(const Installation& installation, const KelmarPaths& paths) {
    const std::string whom = installation.scope == Scope::allUsers ? "all users" : "this user";
    printLine("Installed for " + whom + ": Kelmar " +
              installation.appVersion.value_or("(app missing)"));
    printPaths(installation.paths(), paths);
    if (!installation.receipts.empty()) {
        printLine(indent + "install records: " + joined(installation.receipts, ", "));
    }
    if (installation.needsAdministrator) {
        printLine(indent +
                  "(some files belong to another user: removing them needs an administrator)");
    }
}

void print(const DataRoot& root, const KelmarPaths& paths) {
    printLine("Data in " + paths.display(root.path) + ":");
    for (const DataFolder& folder : root.folders) {
        printLine(indent + column(folder.name) + " " +
                  sizeInWords(Scanner::size(folder.path), "?"));
    }
    if (!root.otherItems.empty()) {
        printLine(indent + "also holds (always kept): " + joined(root.otherItems, ", "));
    }
}

} // namespace

void printScan(const KelmarPaths& paths) {
    const Inventory inventory = Scanner::scan(paths);
    if (inventory.isEmpty()) {
        printLine("Kelmar isn't on this Mac.");
        return;
    }
    for (const Installation& installation : inventory.installations) {
        print(installation, paths);
    }
    if (inventory.appRunning) {
        printLine("Kelmar is running.");
    }
    if (!inventory.loadedServices.empty()) {
        printLine("Services loaded in this login session: " +
                  joined(inventory.loadedServices, ", "));
    }
    if (!inventory.settings.empty()) {
        printLine("Settings:");
        printPaths(inventory.settings, paths);
    }
    if (!inventory.keychainItems.empty()) {
        printLine("Keychain items: " + joined(inventory.keychainItems, ", "));
    }
    for (const DataRoot& root : inventory.dataRoots) {
        print(root, paths);
    }
}

} // namespace kelmar
