#include "system/mac_tools/disk_usage.hpp"
#include "tests/fuzz/require.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

using kelmar::DiskUsage::kibibytesIn;
using kelmar::fuzz::require;

/// What is read as a number of kibibytes is one: written out again it reads the same, and what
/// stands behind the first field never matters.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string output(reinterpret_cast<const char*>(data), size);
    const std::optional<std::int64_t> found = kibibytesIn(output);
    if (found) {
        require(kibibytesIn(std::to_string(*found)) == found);
        require(output.find_first_of("0123456789") != std::string::npos);
        require(kibibytesIn(output + "\t/path 7") == found);
        require(kibibytesIn(" \n" + output) == found);
    }
    return 0;
}
