#include "system/mac_tools/launchctl.hpp"

#include "system/process/shell.hpp"
#include "system/text/strings.hpp"

#include <unistd.h>

namespace kelmar::Launchctl {

namespace {

constexpr const char* program = "/bin/launchctl";

constexpr std::int32_t noSuchProcess = 3;
constexpr std::int32_t notFound = 113;

/// The domain of everything that launchd runs for the user who is logged in at the screen.
std::string domain() {
    return "gui/" + std::to_string(::getuid());
}

std::string target(std::string_view label) {
    return domain().append("/").append(label);
}

} // namespace

bool isLoaded(std::string_view label) {
    return Shell::run(program, {"print", target(label)}).status == 0;
}

std::optional<std::string> propertyList(std::string_view label) {
    return propertyListIn(Shell::run(program, {"print", target(label)}).output);
}

std::optional<std::string> propertyListIn(std::string_view output) {
    constexpr std::string_view key = "path = ";
    for (const std::string& raw : nonEmptyLines(output)) {
        const std::string line = trimmed(raw, " \t");
        if (line.starts_with(key)) {
            return line.substr(key.size());
        }
    }
    return std::nullopt;
}

std::optional<Complaint> stop(std::string_view label) {
    const Shell::Result result = Shell::run(program, {"bootout", target(label)});
    if (result.status == 0 || result.status == noSuchProcess || result.status == notFound) {
        return std::nullopt;
    }
    return Complaint{trimmed(result.output), result.status};
}

std::optional<std::string> start(const std::string& propertyList) {
    const Shell::Result result = Shell::run(program, {"bootstrap", domain(), propertyList});
    return result.status == 0 ? std::nullopt : std::optional(trimmed(result.output));
}

} // namespace kelmar::Launchctl
