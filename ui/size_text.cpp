#include "ui/size_text.hpp"

#include "system/byte_count.hpp"
#include "ui/page.hpp"

namespace kelmar {

std::string sizeText(std::optional<std::int64_t> bytes) {
    if (!bytes) {
        return "Measuring…";
    }
    return *bytes == 0 ? "Empty" : byteCountText(*bytes);
}

std::string SizeText::text() const {
    return sizeText(bytes);
}

std::string SizeText::accessibleName() const {
    return of + ", " + text();
}

} // namespace kelmar
