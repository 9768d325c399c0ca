#include "system/files/files.hpp"
#include "system/process/processes.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <fstream>
#include <sstream>
#include <string_view>

#include <unistd.h>

namespace kelmar {

std::vector<pid_t> processIdentifiers() {
    std::vector<pid_t> identifiers;
    for (const std::string& name : sortedNames("/proc").value_or(std::vector<std::string>{})) {
        pid_t identifier = 0;
        const char* const end = name.data() + name.size();
        const auto [rest, error] = std::from_chars(name.data(), end, identifier);
        if (error == std::errc{} && rest == end) {
            identifiers.push_back(identifier);
        }
    }
    std::sort(identifiers.begin(), identifiers.end());
    return identifiers;
}

std::optional<std::string> executablePath(pid_t process) {
    const std::string link = "/proc/" + std::to_string(process) + "/exe";
    // NOLINTNEXTLINE(*-member-init): filled by the system before it is read
    std::array<char, PATH_MAX> target;
    const ssize_t length = ::readlink(link.c_str(), target.data(), target.size());
    if (length <= 0) {
        return std::nullopt;
    }
    std::string path(target.data(), static_cast<std::size_t>(length));
    // proc(5): the kernel marks a process whose file has been removed since it started.
    constexpr std::string_view removed = " (deleted)";
    if (path.ends_with(removed)) {
        path.resize(path.size() - removed.size());
    }
    return path;
}

std::optional<uid_t> processOwner(pid_t process) {
    // proc(5): "Uid:" and then the real, the effective, the saved and the file system's user.
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("Uid:")) {
            std::istringstream fields(line.substr(4));
            uid_t real = 0;
            uid_t effective = 0;
            return fields >> real >> effective ? std::optional(effective) : std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace kelmar
