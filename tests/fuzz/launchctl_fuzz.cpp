#include "system/mac_tools/launchctl.hpp"
#include "tests/fuzz/require.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

using kelmar::fuzz::require;
using kelmar::Launchctl::propertyListIn;

/// A path that is found stands on a line of the output, behind "path = ", without blanks at its
/// end; lines behind it never matter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string output(reinterpret_cast<const char*>(data), size);
    const std::optional<std::string> found = propertyListIn(output);
    if (found) {
        require(output.find("path = " + *found) != std::string::npos);
        require(found->find('\n') == std::string::npos);
        require(found->empty() || (found->back() != ' ' && found->back() != '\t'));
        require(propertyListIn(output + "\npath = /other") == found);
        require(propertyListIn("path = /first\n" + output) == "/first");
    } else {
        require(propertyListIn(output + "\n\tpath = /other\n") == "/other");
    }
    return 0;
}
