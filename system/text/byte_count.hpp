#pragma once

#include <cstdint>
#include <string>

namespace kelmar {

/// Formats `bytes` for people, like a file size: decimal units, no decimals up to KB, at most one
/// for MB, at most two from GB on, without trailing zeros ("1 byte", "512 bytes", "4 KB", "1.5 MB",
/// "3.21 GB", "1 TB"). Halves round away from zero, and 1000 of a unit becomes 1 of the next.
std::string byteCountText(std::int64_t bytes);

} // namespace kelmar
