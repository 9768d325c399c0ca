#include "ui/size_text.hpp"

#include "system/text/byte_count.hpp"

namespace kelmar {

std::string sizeText(std::optional<std::int64_t> bytes) {
    if (!bytes) {
        return "Measuring…";
    }
    return *bytes == 0 ? "Empty" : byteCountText(*bytes);
}

} // namespace kelmar
