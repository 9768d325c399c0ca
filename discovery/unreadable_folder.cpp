#include "discovery/unreadable_folder.hpp"

#include "system/files/files.hpp"

#include <cerrno>
#include <utility>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {

namespace {

bool isFolderOfMine(const std::string& path) {
    struct stat status {};

    return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::getuid();
}

} // namespace

std::optional<std::string> unreadableFolderOfMine(const std::string& path) {
    std::vector<std::string> waiting{path};
    while (!waiting.empty()) {
        const std::string folder = std::move(waiting.back());
        waiting.pop_back();
        if (!isFolderOfMine(folder)) {
            continue;
        }
        if (::access(folder.c_str(), R_OK | X_OK) != 0 && errno == EACCES) {
            return folder;
        }
        for (const std::string& name : sortedNames(folder).value_or(std::vector<std::string>{})) {
            waiting.push_back(folder + "/" + name);
        }
    }
    return std::nullopt;
}

} // namespace kelmar
