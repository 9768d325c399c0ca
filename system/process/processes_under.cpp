#include "system/process/processes_under.hpp"

#include "system/process/processes.hpp"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>

#include <unistd.h>

namespace kelmar {

namespace {

struct FreeText {
    void operator()(char* text) const { std::free(text); }
};

std::vector<std::string> prefixes(const std::vector<std::string>& folders) {
    std::vector<std::string> result;
    for (const std::string& folder : folders) {
        result.push_back(folder + "/");
        const std::unique_ptr<char, FreeText> resolved(::realpath(folder.c_str(), nullptr));
        if (resolved) {
            result.push_back(std::string(resolved.get()) + "/");
        }
    }
    return result;
}

} // namespace

std::vector<pid_t> processesUnder(const std::vector<std::string>& folders) {
    const std::vector<std::string> inside = prefixes(folders);
    const auto isInside = [&inside](const std::string& path) {
        return std::any_of(inside.begin(), inside.end(),
                           [&path](const std::string& prefix) { return path.starts_with(prefix); });
    };
    std::vector<pid_t> found;
    for (const pid_t process : processIdentifiers()) {
        if (process < 1 || process == ::getpid()) {
            continue;
        }
        const std::optional<std::string> path = executablePath(process);
        if (path && isInside(*path)) {
            found.push_back(process);
        }
    }
    return found;
}

} // namespace kelmar
