#include "tests/support/mac_userland.hpp"

#include "tests/support/can_be_constructed.hpp"

#include <cstdlib>
#include <filesystem>

#include <unistd.h>

namespace kelmar::test {

namespace {

namespace fs = std::filesystem;

std::string folder() {
    const char* const value = std::getenv("KELMAR_MAC_USERLAND");
    return value == nullptr ? "" : value;
}

} // namespace

std::optional<std::string> MacUserland::skipReason() {
    if (folder().empty()) {
        return "KELMAR_MAC_USERLAND names no folder with a Mac's tools";
    }
    if (!fs::exists(folder() + "/bash") || !fs::exists(folder() + "/rm")) {
        return "there is no bash or no rm in " + folder();
    }
    if (::getuid() != 0) {
        return "a Mac's tools take mounts of their own, and so root";
    }
    if (!fs::is_symlink("/bin") || !fs::exists("/usr/bin/python3")) {
        return "this system keeps its tools elsewhere than in /usr/bin, or has no python3 there";
    }
    return canBeConstructed<PrivateMounts>()
               ? std::nullopt
               : std::optional<std::string>("this machine lets nobody mount anything");
}

bool MacUserland::isWanted() {
    return std::getenv("KELMAR_TESTS_WITH_MAC_TOOLS") != nullptr;
}

void MacUserland::install(PrivateMounts& mounts, const std::string& root) {
    for (const fs::directory_entry& tool : fs::directory_iterator(folder())) {
        const std::string place = root + "/usr/bin/" + tool.path().filename().native();
        if (fs::exists(place)) {
            mounts.bind(tool.path(), place);
        }
    }
}

} // namespace kelmar::test
