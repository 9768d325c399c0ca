#include "system/text/byte_count.hpp"

#include <array>
#include <string_view>

namespace kelmar {

namespace {

struct Unit {
    std::string_view name;
    std::uint64_t bytes;
    std::uint64_t parts; ///< steps per unit: 1, 10 or 100
};

constexpr std::uint64_t kilo = 1000;
constexpr std::array<Unit, 6> units{{
    {"KB", kilo, 1},
    {"MB", kilo* kilo, 10},
    {"GB", kilo* kilo* kilo, 100},
    {"TB", kilo* kilo* kilo* kilo, 100},
    {"PB", kilo* kilo* kilo* kilo* kilo, 100},
    {"EB", kilo* kilo* kilo* kilo* kilo* kilo, 100},
}};

/// `magnitude` in steps of the unit, rounded.
std::uint64_t steps(std::uint64_t magnitude, const Unit& unit) {
    const std::uint64_t step = unit.bytes / unit.parts;
    return (magnitude + step / 2) / step;
}

std::string number(std::uint64_t steps, std::uint64_t parts) {
    std::string text = std::to_string(steps / parts);
    std::uint64_t fraction = steps % parts;
    if (fraction != 0) {
        text.push_back('.');
    }
    while (fraction != 0) {
        parts /= 10;
        text.append(std::to_string(fraction / parts));
        fraction %= parts;
    }
    return text;
}

std::string magnitudeText(std::uint64_t magnitude) {
    if (magnitude < kilo) {
        return std::to_string(magnitude) + (magnitude == 1 ? " byte" : " bytes");
    }
    const Unit* unit = units.data();
    while (unit != &units.back() && steps(magnitude, *unit) >= kilo * unit->parts) {
        ++unit;
    }
    return number(steps(magnitude, *unit), unit->parts) + " " + std::string(unit->name);
}

} // namespace

std::string byteCountText(std::int64_t bytes) {
    // Negate as unsigned: the smallest signed value has no positive counterpart.
    const auto bits = static_cast<std::uint64_t>(bytes);
    return bytes < 0 ? "-" + magnitudeText(0 - bits) : magnitudeText(bits);
}

} // namespace kelmar
