#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kelmar {

/// A size for people: "Measuring…" while it is absent, "Empty" for 0, else as the platform writes
/// the sizes of files.
std::string sizeText(std::optional<std::int64_t> bytes);

} // namespace kelmar
