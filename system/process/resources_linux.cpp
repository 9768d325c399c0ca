#include "system/files/files.hpp"
#include "system/process/processes.hpp"
#include "system/process/resources.hpp"

#include <unistd.h>

namespace kelmar {

std::optional<std::string> resourcePath(const std::string& name) {
    const std::optional<std::string> executable = executablePath(::getpid());
    if (!executable) {
        return std::nullopt;
    }
    std::string path = executable->substr(0, executable->rfind('/') + 1) + name;
    return exists(path) ? std::optional(std::move(path)) : std::nullopt;
}

} // namespace kelmar
