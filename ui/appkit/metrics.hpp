#pragma once

/// The measures of the page, in points.
namespace kelmar::Metrics {

constexpr double windowWidth = 600;
constexpr double windowHeight = 620;
constexpr double pageMargin = 24;
constexpr double sectionGap = 16;
constexpr double cardPadding = 12;
constexpr double cardRadius = 10;
constexpr double partGap = 8;
constexpr double rowPadding = 8;
constexpr double textGap = 2;
constexpr double dividerIndent = 52;
constexpr double headerIcon = 56;
constexpr double rowIcon = 28;
constexpr double rowSymbol = 20;
constexpr double noteSymbol = 16;
constexpr double spinner = 16;
constexpr double footerHeight = 64;
constexpr double recordHeight = 160; ///< the least that the unfolded record of a run is given

} // namespace kelmar::Metrics
