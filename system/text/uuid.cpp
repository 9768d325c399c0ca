#include "system/text/uuid.hpp"

#include <array>
#include <cstdint>
#include <random>
#include <string_view>

namespace kelmar {

std::string randomUuid() {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::random_device random; // the system's own generator: names made from it can't be guessed
    std::array<std::uint8_t, 16> bytes{};
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(random());
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

} // namespace kelmar
