#include "system/files/user_folders.hpp"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string_view>
#include <vector>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {

namespace {

/// An environment variable that names an absolute path, or the empty text.
std::string absoluteFromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && *value == '/' ? value : "";
}

bool isFolder(const std::string& path) {
    struct stat status {};

    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

std::string homeFolder() {
    std::vector<char> buffer(1024);
    passwd record{};
    passwd* found = nullptr;
    while (::getpwuid_r(::getuid(), &record, buffer.data(), buffer.size(), &found) == ERANGE) {
        buffer.resize(buffer.size() * 2);
    }
    if (found != nullptr && found->pw_dir != nullptr && *found->pw_dir == '/') {
        return found->pw_dir;
    }
    const std::string home = absoluteFromEnvironment("HOME");
    return home.empty() ? "/" : home;
}

std::string temporaryFolder() {
    const std::string folder = absoluteFromEnvironment("TMPDIR");
    return isFolder(folder) ? folder : "/tmp";
}

} // namespace kelmar
