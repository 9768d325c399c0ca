#include "app/scan_listing.hpp"

#include "app/printing.hpp"
#include "discovery/inventory.hpp"
#include "discovery/scanner.hpp"
#include "discovery/size_in_words.hpp"
#include "system/text/strings.hpp"

#include <string>
#include <vector>

namespace kelmar {

namespace {

/// Pads to the column's width in bytes: the names of data folders are ASCII.
std::string column(std::string name) {
    constexpr std::size_t width = 12;
    name.resize(width, ' ');
    return name;
}

/// Prints lines as long as somebody reads them. Once the reader has gone, as after `--scan | head
/// -1`, the listing ends instead of measuring more folders.
class Listing {
public:
    explicit Listing(const KelmarPaths& paths) : paths_(paths) {}

    void print(const Inventory& inventory) {
        for (const Installation& installation : inventory.installations) {
            print(installation);
        }
        if (inventory.appRunning) {
            line("Kelmar is running.");
        }
        list("Services loaded in this login session: ", inventory.loadedServices);
        if (!inventory.settings.empty()) {
            line("Settings:");
            indented(inventory.settings);
        }
        list("Keychain items: ", inventory.keychainItems);
        for (const DataRoot& root : inventory.dataRoots) {
            print(root);
        }
    }

private:
    void line(const std::string& text) { isRead_ = isRead_ && kelmar::print(text); }

    void list(const std::string& label, const std::vector<std::string>& words) {
        if (!words.empty()) {
            line(label + joined(words, ", "));
        }
    }

    void indented(const std::vector<std::string>& paths) {
        for (const std::string& path : paths) {
            line(indent + paths_.display(path));
        }
    }

    void print(const Installation& installation) {
        const std::string whom = installation.scope == Scope::allUsers ? "all users" : "this user";
        line("Installed for " + whom + ": Kelmar " +
             installation.appVersion.value_or("(app missing)"));
        indented(installation.paths());
        list(indent + "install records: ", installation.receipts);
        if (installation.needsAdministrator) {
            line(indent +
                 "(some files belong to another user: removing them needs an administrator)");
        }
    }

    void print(const DataRoot& root) {
        line("Data in " + paths_.display(root.path) + ":");
        for (const DataFolder& folder : root.folders) {
            if (isRead_) {
                line(indent + column(folder.name) + " " +
                     sizeInWords(Scanner::size(folder.path), "?"));
            }
        }
        list(indent + "also holds (always kept): ", root.otherItems);
    }

    const KelmarPaths& paths_;
    bool isRead_ = true;
};

} // namespace

void printScan(const KelmarPaths& paths) {
    const Inventory inventory = Scanner::scan(paths);
    if (inventory.isEmpty()) {
        print("Kelmar isn't on this Mac.");
        return;
    }
    Listing(paths).print(inventory);
}

} // namespace kelmar
