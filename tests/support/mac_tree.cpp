#include "tests/support/mac_tree.hpp"

#include "discovery/identifiers.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace kelmar::test {

namespace {

constexpr std::string_view listHead =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
)";
constexpr std::string_view listTail = "</dict>\n</plist>\n";

std::string pair(std::string_view key, std::string_view value) {
    return "\t<key>" + std::string(key) + "</key>\n\t<string>" + std::string(value) + "</string>\n";
}

std::string agentRecord(const std::string& path, const std::string& program) {
    const std::string label = std::filesystem::path(path).stem();
    return std::string(listHead) + pair("Label", label) + pair("Program", program) +
           std::string(listTail);
}

} // namespace

KelmarPaths pathsUnder(const std::string& root) {
    return {root + "/system", root + "/home", root + "/tmp", root};
}

std::string versionRecord(std::string_view version) {
    return std::string(listHead) + pair("CFBundleIdentifier", legacyBundleIdentifier) +
           pair("CFBundleShortVersionString", version) + std::string(listTail);
}

MacTree::MacTree(const std::string& root) : MacTree(pathsUnder(root)) {
    folder(paths_.systemRoot).folder(paths_.home).folder(paths_.temporaryDirectory);
}

MacTree::MacTree(KelmarPaths paths) : paths_(std::move(paths)) {}

MacTree& MacTree::folder(const std::string& path) {
    std::filesystem::create_directories(path);
    return *this;
}

MacTree& MacTree::file(const std::string& path, std::string_view contents) {
    folder(std::filesystem::path(path).parent_path());
    std::ofstream stream(path, std::ios::binary);
    stream.write(contents.data(), static_cast<std::streamsize>(contents.size()));
    if (!stream.flush()) {
        throw std::runtime_error("cannot write " + path);
    }
    return *this;
}

MacTree& MacTree::link(const std::string& path, const std::string& target) {
    folder(std::filesystem::path(path).parent_path());
    std::filesystem::create_symlink(target, path);
    return *this;
}

MacTree& MacTree::app(Scope scope, std::string_view version) {
    return appWithoutVersion(scope).file(paths_.app(scope) + "/Contents/Info.plist",
                                         versionRecord(version));
}

MacTree& MacTree::appWithoutVersion(Scope scope) {
    return file(paths_.app(scope) + "/Contents/MacOS/Kelmar", "#!/bin/sh\n");
}

MacTree& MacTree::services(Scope scope) {
    return file(paths_.services(scope) + "/bin/kelmar-api", "#!/bin/sh\n")
        .file(paths_.services(scope) + "/bin/kelmar-worker", "#!/bin/sh\n")
        .file(paths_.services(scope) + "/lib/models.conf", "threads = 2\n");
}

MacTree& MacTree::agents(Scope scope) {
    for (const std::string& path : paths_.agents(scope)) {
        file(path, agentRecord(path, paths_.services(scope) + "/bin/kelmar-api"));
    }
    return *this;
}

MacTree& MacTree::settings() {
    const std::string library = paths_.home + "/Library/";
    const std::string identifier(legacyBundleIdentifier);
    return file(library + "Application Support/Kelmar/state.json", "{}\n")
        .file(library + "Application Support/Quobrintal/state.json", "{}\n")
        .file(library + "Logs/Kelmar/main.log", "started\n")
        .file(library + "Preferences/" + identifier + ".plist", versionRecord("1"))
        .file(library + "Preferences/ByHost/" + identifier + ".0A1B2C3D.plist", versionRecord("1"))
        .file(library + "Saved Application State/" + identifier + ".savedState/windows.plist")
        .file(library + "Caches/" + identifier + "/Cache.db")
        .file(library + "HTTPStorages/" + identifier + "/httpstorages.sqlite")
        .file(library + "WebKit/" + identifier + "/WebsiteData/salt");
}

MacTree& MacTree::temporaryFiles() {
    for (const char* const name : {"Kelmar", "Kelmar_temp", "sd-soffice-diagram"}) {
        file(paths_.temporaryDirectory + "/" + name + "/part", "x");
    }
    return *this;
}

MacTree& MacTree::dataFolder(Scope scope, std::string_view name, std::size_t bytes) {
    constexpr std::size_t fileSize = 1'000'000;
    const std::string path = paths_.dataRoot(scope) + "/" + std::string(name);
    folder(path);
    for (std::size_t number = 0; bytes != 0; ++number) {
        const std::size_t size = std::min(bytes, fileSize);
        file(path + "/part-" + std::to_string(number), std::string(size, 'k'));
        bytes -= size;
    }
    return *this;
}

MacTree& MacTree::otherItem(Scope scope, std::string_view name) {
    return file(paths_.dataRoot(scope) + "/" + std::string(name), "mine\n");
}

MacTree& MacTree::everything() {
    app(Scope::allUsers, "4.2.1").services(Scope::allUsers).agents(Scope::allUsers);
    app(Scope::me, "4.3").services(Scope::me).agents(Scope::me);
    settings().temporaryFiles();
    dataFolder(Scope::me, "Database", 2'400'000).dataFolder(Scope::me, "Store", 12'300'000);
    dataFolder(Scope::me, "Export", 40'000).dataFolder(Scope::me, "Logs", 3'000);
    otherItem(Scope::me, "notes.txt").otherItem(Scope::me, ".DS_Store");
    dataFolder(Scope::allUsers, "CDN", 5'600'000)
        .dataFolder(Scope::allUsers, "CDN_remote", 700'000);
    return dataFolder(Scope::allUsers, "Models", 1'000'000).dataFolder(Scope::allUsers, "Staging");
}

} // namespace kelmar::test
