#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kelmar {

/// The size of a data folder for people: "Empty" for 0, else as the platform writes the sizes of
/// files, and `unknown` while there is none.
std::string sizeInWords(std::optional<std::int64_t> bytes, const std::string& unknown);

} // namespace kelmar
