#include "discovery/size_in_words.hpp"

#include "system/text/byte_count.hpp"

namespace kelmar {

std::string sizeInWords(std::optional<std::int64_t> bytes, const std::string& unknown) {
    if (!bytes) {
        return unknown;
    }
    return *bytes == 0 ? "Empty" : byteCountText(*bytes);
}

} // namespace kelmar
