#include "discovery/kelmar_paths.hpp"

#include "discovery/identifiers.hpp"
#include "system/files/user_folders.hpp"
#include "system/text/path_text.hpp"

#include <algorithm>
#include <cstdlib>

namespace kelmar {

namespace {

KelmarPaths under(const std::string& testRoot) {
    // "//" and "/.." name the root folder as well; below it the three folders still need one slash
    // each.
    const std::string base = testRoot == "/" ? "" : testRoot;
    return {base + "/system", base + "/home", base + "/tmp", testRoot};
}

} // namespace

bool KelmarPaths::isIgnorable(std::string_view name) {
    return std::find(ignorableNames.begin(), ignorableNames.end(), name) != ignorableNames.end();
}

KelmarPaths KelmarPaths::current() {
    const char* const value = std::getenv("KELMAR_UNINSTALLER_TEST_ROOT");
    const std::string_view root = value == nullptr ? "" : value;
    if (root.size() >= 2 && root.front() == '/') {
        return under(standardised(root));
    }
    return {"", standardised(homeFolder()), standardised(temporaryFolder()), std::nullopt};
}

std::string KelmarPaths::display(const std::string& path) const {
    if (path == home) {
        return "~";
    }
    if (path.starts_with(home + "/")) {
        return "~" + path.substr(home.size());
    }
    if (testRoot && path.starts_with(systemRoot + "/")) {
        return path.substr(systemRoot.size());
    }
    return path;
}

const std::string& KelmarPaths::root(Scope scope) const {
    return scope == Scope::allUsers ? systemRoot : home;
}

std::string KelmarPaths::app(Scope scope) const {
    return root(scope) + "/Applications/Kelmar.app";
}

std::string KelmarPaths::services(Scope scope) const {
    return root(scope) + "/Library/Kelmar";
}

std::string KelmarPaths::dataRoot(Scope scope) const {
    return scope == Scope::allUsers ? systemRoot + "/Users/Shared/@Kelmar" : home + "/Kelmar";
}

std::vector<std::string> KelmarPaths::agents(Scope scope) const {
    std::vector<std::string> paths;
    for (const std::string_view label : {apiAgentLabel, workerAgentLabel}) {
        paths.push_back(root(scope) + "/Library/LaunchAgents/" + std::string(label) + ".plist");
    }
    return paths;
}

} // namespace kelmar
