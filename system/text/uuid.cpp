#include "system/text/uuid.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include <sys/random.h>

namespace kelmar {

namespace {

constexpr std::string_view digits = "0123456789ABCDEF";

} // namespace

std::optional<std::string> randomUuid() {
    std::array<std::uint8_t, 16> bytes{};
    if (::getentropy(bytes.data(), bytes.size()) != 0) {
        return std::nullopt;
    }
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40); // version: random
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80); // variant: RFC 4122
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text.push_back(digits[byte >> 4]);
        text.push_back(digits[byte & 0x0F]);
    }
    for (const std::size_t at : {8U, 13U, 18U, 23U}) {
        text.insert(at, 1, '-');
    }
    return text;
}

bool isUuid(std::string_view text) {
    constexpr std::string_view form = "00000000-0000-0000-0000-000000000000";
    return std::equal(text.begin(), text.end(), form.begin(), form.end(),
                      [](char character, char place) {
                          return place == '-' ? character == '-'
                                              : digits.find(character) != std::string_view::npos;
                      });
}

} // namespace kelmar
