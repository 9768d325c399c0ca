#pragma once

#include <cstdint>
#include <string>

namespace kelmar {

/// `bytes` for people, in the style of file sizes: decimal units, no decimals up to KB, at most one
/// for MB, at most two from GB on, without trailing zeros ("1 byte", "512 bytes", "4 KB", "1.5 MB",
/// "3.21 GB", "1 TB"). Halves round away from zero, and what rounds to 1000 is 1 of the next unit.
std::string byteCountText(std::int64_t bytes);

} // namespace kelmar
