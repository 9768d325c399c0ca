#include "system/property_list/property_list.hpp"
#include "system/text/utf8.hpp"
#include "tests/fuzz/require.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Any bytes are read without a crash or a wait, and what is found comes from them: no text can be
/// longer than the file that holds it, but for UTF-16 becoming UTF-8.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::optional<std::string> found =
        kelmar::stringInPropertyList(bytes, "CFBundleShortVersionString");
    kelmar::fuzz::require(!found || found->size() <= 3 * size);
    return 0;
}
