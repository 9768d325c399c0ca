#include "system/mac_tools/pkgutil.hpp"

#include "system/process/shell.hpp"
#include "system/text/strings.hpp"

#include <vector>

namespace kelmar::Pkgutil {

namespace {

constexpr const char* program = "/usr/sbin/pkgutil";

} // namespace

bool hasReceipt(std::string_view identifier, const std::optional<std::string>& volume) {
    std::vector<std::string> arguments{"--pkg-info", std::string(identifier)};
    if (volume) {
        arguments.insert(arguments.end(), {"--volume", *volume});
    }
    return Shell::run(program, arguments).status == 0;
}

std::optional<std::string> forget(std::string_view identifier, const std::string& volume) {
    const Shell::Result result =
        Shell::run(program, {"--forget", std::string(identifier), "--volume", volume});
    return result.status == 0 ? std::nullopt : std::optional(trimmed(result.output));
}

} // namespace kelmar::Pkgutil
