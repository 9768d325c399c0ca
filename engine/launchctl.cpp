#include "engine/launchctl.hpp"

#include "system/text.hpp"

namespace kelmar {

std::optional<std::string> propertyListPath(std::string_view output) {
    constexpr std::string_view key = "path = ";
    constexpr std::string_view blank = " \t";
    for (std::string_view line : nonEmptyLines(output)) {
        line.remove_prefix(std::min(line.find_first_not_of(blank), line.size()));
        line.remove_suffix(line.size() - (line.find_last_not_of(blank) + 1));
        if (line.starts_with(key)) {
            return std::string(line.substr(key.size()));
        }
    }
    return std::nullopt;
}

} // namespace kelmar
