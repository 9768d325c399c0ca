#include "system/text/byte_count.hpp"
#include "system/text/foundation_text_macos.hpp"

namespace kelmar {

std::string byteCountText(std::int64_t bytes) {
    @autoreleasepool {
        return plainText([NSByteCountFormatter
            stringFromByteCount:bytes
                     countStyle:NSByteCountFormatterCountStyleFile]);
    }
}

} // namespace kelmar
