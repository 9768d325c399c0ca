#include "ui/qt/contrast.hpp"

#include <algorithm>
#include <cmath>

namespace kelmar {

namespace {

/// Relative luminance as WCAG 2.1 defines it.
double luminance(const QColor& colour) {
    const auto linear = [](float channel) {
        const auto value = static_cast<double>(channel);
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QColor mixed(const QColor& under, const QColor& over, double share) {
    const auto part = [share](int below, int above) {
        return static_cast<int>(std::lround(below * (1 - share) + above * share));
    };
    return {part(under.red(), over.red()), part(under.green(), over.green()),
            part(under.blue(), over.blue())};
}

QColor standingOut(QColor colour, const QColor& end, double ratio,
                   std::initializer_list<QColor> grounds) {
    const auto standsOut = [ratio, &grounds](const QColor& candidate) {
        return std::all_of(grounds.begin(), grounds.end(), [&](const QColor& ground) {
            return contrast(candidate, ground) >= ratio;
        });
    };
    constexpr int steps = 50;
    for (int step = 0; step <= steps; ++step) {
        if (const QColor moved = mixed(colour, end, static_cast<double>(step) / steps);
            standsOut(moved)) {
            return moved;
        }
    }
    return end;
}

} // namespace kelmar
