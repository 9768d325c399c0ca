#pragma once

#include <QMargins>

namespace kelmar {

/// `sides` left and right, `ends` above and below.
constexpr QMargins margins(int sides, int ends) {
    return {sides, ends, sides, ends};
}

constexpr QMargins margins(int around) {
    return margins(around, around);
}

} // namespace kelmar
