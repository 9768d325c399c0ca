#pragma once

namespace kelmar {

/// The look of the window, for both renderers. Lengths are in points (device-independent pixels). A
/// native control keeps the platform's size.
namespace Look {

// The window and its page.
constexpr int windowWidth = 600;
constexpr int windowHeight = 620;
constexpr int windowIcon = 64;    ///< in the desktop's lists of windows
constexpr int pageMargin = 24;    ///< at the sides of header, content and footer
constexpr int headerPadding = 12; ///< above and below the header
constexpr int noticeMargin = 48;  ///< at the sides of a text without other content
constexpr int scrollVeil = 12;    ///< height of the fade at the content's edges
constexpr int sectionGap = 16;    ///< between sections, and above and below all of them
constexpr int partGap = 8;        ///< between the parts of a row or of a section
constexpr int lineGap = 4;        ///< between lines that belong together
constexpr int textGap = 2;        ///< between a row's title and the detail under it
constexpr int hairline = 1;       ///< the thickness of a dividing line

// Icons, symbols and the spinner: the side of a square.
constexpr int headerIcon = 56;
constexpr int rowIcon = 28;
constexpr int rowSymbol = 20;
constexpr int noteSymbol = 16; ///< in the footer
constexpr int spinner = 16;    ///< in the middle of a square of `rowSymbol`

// Cards.
constexpr int cardPadding = 12; ///< around a card's content, and between undivided rows
constexpr int cardRadius = 10;
constexpr int rowPadding = 6; ///< above and below the texts of a divided row
constexpr int columnGap = 12; ///< between columns in a card, such as a row's icon and its texts

/// The column of icons before texts: an icon in the middle of the column's width.
struct IconColumn {
    int icon;
    int width;
    int gap; ///< between the column and the text
};

constexpr IconColumn rowIcons{rowSymbol, rowIcon, columnGap};    ///< of every row in a card
constexpr IconColumn noteIcons{noteSymbol, noteSymbol, partGap}; ///< of notes and spinners outside
constexpr int rowTextIndent = cardPadding + rowIcons.width + rowIcons.gap;
constexpr double tintedGround = 0.12; ///< the opacity of a tinted card's ground
constexpr double tintedEdge = 0.35;   ///< the opacity of its edge

/// The contrast ratios that people need to read text, and to see a symbol or the edge of a control
/// (WCAG 2.1, level AA). What is disabled is exempt.
constexpr double textContrast = 4.5;
constexpr double controlContrast = 3.0;

// The log.
constexpr int logHeight = 112;       ///< minimum; the log fills the rest of the page
constexpr int logSideMargin = 2;     ///< between the log's card and the log with its scroll bar
constexpr int logVerticalMargin = 4; ///< the same, above and below
constexpr int logPadding = 10;       ///< between the log's edge and its text

// The footer and its buttons.
constexpr int footerHeight = 64; ///< minimum
constexpr int footerPadding = 12;
constexpr int buttonGap = 12;
constexpr int buttonWidth = 88; ///< minimum width of a large button

// Controls, where the platform does not draw its own.
struct Padding {
    int sides; ///< left and right of the text
    int ends;  ///< above and below it
};

constexpr Padding regularButton{12, 4};
constexpr Padding largeButton{18, 7};
constexpr int buttonRadius = 6;
constexpr int controlRadius = 4; ///< of smaller controls
constexpr int checkBox = 16;
constexpr int switchWidth = 38;
constexpr int switchHeight = 22;
constexpr int disclosureChevron = 14;
constexpr int disclosureBearing = 4; ///< empty space around the chevron in its square
constexpr int disclosureGap = 4;     ///< between the chevron's square or the triangle and its text
constexpr int scrollBar = 10;
constexpr int focusRing = 2; ///< the width of the line around the focused control
constexpr int focusRoom = 3; ///< space around a control for its focus ring

// The alert and the about panel, where the platform does not draw its own.
constexpr int alertWidth = windowWidth - 2 * pageMargin;
constexpr int alertPadding = 20;
constexpr int alertIcon = 48;
constexpr int alertTextGap = 6;
constexpr int aboutMargin = 48; ///< at the sides
constexpr int aboutIcon = 64;

} // namespace Look

enum class TextStyle {
    title,        ///< the headline
    sectionTitle, ///< above a card; an alert's title
    body,
    callout, ///< second lines and notes
    size,    ///< of a folder: tabular digits, so that a changing number does not move
    log,
};

enum class TextTone {
    primary,
    secondary,
};

enum class TextWeight {
    regular,
    semibold,
};

enum class TextFace {
    proportional,
    equalDigits,
    monospaced,
};

/// The size of body text; the other sizes are relative to it.
constexpr int bodyPoints = 13;
constexpr int calloutPoints = 12;

struct TextLook {
    int points = bodyPoints; ///< if the platform's font has `bodyPoints`
    TextWeight weight = TextWeight::regular;
    TextFace face = TextFace::proportional;
};

constexpr TextLook lookOf(TextStyle style) {
    switch (style) {
    case TextStyle::title:
        return {20, TextWeight::semibold};
    case TextStyle::sectionTitle:
        return {bodyPoints, TextWeight::semibold};
    case TextStyle::callout:
        return {calloutPoints};
    case TextStyle::size:
        return {calloutPoints, TextWeight::regular, TextFace::equalDigits};
    case TextStyle::log:
        return {calloutPoints, TextWeight::regular, TextFace::monospaced};
    case TextStyle::body:
        break;
    }
    return {};
}

} // namespace kelmar
