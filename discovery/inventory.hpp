#pragma once

#include "discovery/kelmar_paths.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// What a scan found: plain values that hold paths and names and never access the file system.
namespace kelmar {

/// One installation of the product, for one scope.
struct Installation {
    Scope scope = Scope::me;
    std::optional<std::string> app;        ///< path of the app bundle, if it exists
    std::optional<std::string> appVersion; ///< short version, if its Info.plist has one
    std::optional<std::string> services;   ///< path of the services folder, if it exists
    std::vector<std::string> agents;       ///< the launch agents' property lists that exist
    std::vector<std::string> receipts;     ///< identifiers of the package receipts that exist
    bool needsAdministrator = false;       ///< another user owns some of the files (for `me` only)

    /// Those of the app, the services folder and the agents that exist. Receipts have no path.
    [[nodiscard]] std::vector<std::string> paths() const;

    friend bool operator==(const Installation&, const Installation&) = default;
};

/// One of the product's own folders inside a data root. Its path is its identity.
struct DataFolder {
    std::string name;
    std::string summary; ///< describes the content, for people
    std::string path;
    std::optional<std::int64_t> bytes; ///< absent until measured, and if measuring failed

    /// The name of a data folder, and what such a folder holds.
    struct Known {
        std::string_view name;
        std::string_view summary;
    };

    /// The product's data folders, in the order in which they are listed. Names are case-sensitive.
    /// `uninstall-as-admin.sh` repeats them, since root takes no list from a user's program; a test
    /// compares the two.
    static constexpr std::array<Known, 8> known{{
        {"Database", "Case databases"},
        {"Store", "Imported documents"},
        {"Export", "Exported files"},
        {"CDN", "AI models and tools"},
        {"CDN_remote", "Copy of the AI model source"},
        {"Models", "AI models"},
        {"Staging", "Files waiting to be imported"},
        {"Logs", "Service logs"},
    }};
    static bool isKnown(std::string_view name);

    friend bool operator==(const DataFolder&, const DataFolder&) = default;
};

/// The product's data folder for one scope. Its path is its identity.
struct DataRoot {
    Scope scope = Scope::me;
    std::string path;
    std::vector<DataFolder> folders; ///< in the order of `DataFolder::known`
    /// Names of everything else inside, sorted, without the ignorable ones.
    std::vector<std::string> otherItems;

    friend bool operator==(const DataRoot&, const DataRoot&) = default;
};

/// Why removing something needs an administrator. The prompt and all texts about it derive from
/// these values. A text that gives one reason gives the first that holds.
struct AdministratorReasons {
    bool allUsers = false; ///< an installation for all users
    bool ownFiles = false; ///< somebody else's files in the current user's installation
    std::vector<DataFolder> sharedData; ///< the chosen folders of the shared data, in order

    [[nodiscard]] bool any() const { return allUsers || ownFiles || !sharedData.empty(); }

    friend bool operator==(const AdministratorReasons&, const AdministratorReasons&) = default;
};

/// The result of one scan.
struct Inventory {
    std::vector<Installation> installations; ///< at most one a scope, `allUsers` first
    bool appRunning = false;
    std::vector<std::string> loadedServices; ///< labels loaded in this session, API before Worker
    std::vector<std::string> settings; ///< settings, caches, logs, temporary files of this account
    std::vector<std::string> keychainItems; ///< service names, this edition's before the former's
    std::vector<DataRoot> dataRoots;        ///< at most one a scope, `me` first

    /// Returns true if nothing of the product is installed. A running app alone does not count:
    /// there is nothing to remove.
    [[nodiscard]] bool isEmpty() const;

    /// The folders of all data roots, in order.
    [[nodiscard]] std::vector<DataFolder> dataFolders() const;

    [[nodiscard]] std::optional<Installation> allUsers() const;
    [[nodiscard]] std::optional<Installation> mine() const;

    /// The data folders whose paths are in `chosen`, in order: those of all roots, or of the roots
    /// of one `scope`.
    [[nodiscard]] std::vector<DataFolder> selected(const std::set<std::string>& chosen,
                                                   std::optional<Scope> scope = std::nullopt) const;

    /// Why an administrator is needed to remove the product and those data folders whose paths are
    /// in `deleting`.
    [[nodiscard]] AdministratorReasons
    administratorReasons(const std::set<std::string>& deleting) const;

    /// Returns true if any of these reasons holds.
    [[nodiscard]] bool needsAdministrator(const std::set<std::string>& deleting) const;

    friend bool operator==(const Inventory&, const Inventory&) = default;
};

} // namespace kelmar
