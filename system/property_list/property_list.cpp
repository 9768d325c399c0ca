#include "system/property_list/property_list.hpp"

#include "system/files/files.hpp"

#include <cstddef>

namespace kelmar {

namespace {

constexpr std::size_t sizeLimit = 16'777'216;

} // namespace

std::optional<std::string> propertyListString(const std::string& path, std::string_view key) {
    const std::optional<std::string> bytes = readFile(path, sizeLimit);
    return bytes ? stringInPropertyList(*bytes, key) : std::nullopt;
}

} // namespace kelmar
