#include "engine/launchctl.hpp"

#include "system/text.hpp"

namespace kelmar {

std::optional<std::string> propertyListPath(std::string_view output) {
    constexpr std::string_view key = "path = ";
    for (const std::string& raw : nonEmptyLines(output)) {
        const std::string line = trimmed(raw, " \t");
        if (line.starts_with(key)) {
            return line.substr(key.size());
        }
    }
    return std::nullopt;
}

} // namespace kelmar
