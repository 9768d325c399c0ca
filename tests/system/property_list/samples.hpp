#pragma once

#include <string>
#include <string_view>

namespace kelmar::test {

/// The key that the tests look up.
constexpr const char* key = "CFBundleShortVersionString";

inline std::string repeated(std::string_view text, int count) {
    std::string all;
    for (int index = 0; index < count; ++index) {
        all += text;
    }
    return all;
}

} // namespace kelmar::test
