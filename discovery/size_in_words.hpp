#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kelmar {

/// The size of a data folder for people: "Empty" for 0, else in the platform's format for file
/// sizes, and `unknown` if there is no size.
std::string sizeInWords(std::optional<std::int64_t> bytes, const std::string& unknown);

} // namespace kelmar
