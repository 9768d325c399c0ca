#pragma once

#include <QFont>

namespace kelmar {

/// How large and how heavy a text is, as multiples of the platform's own font.
enum class TextStyle {
    title,   ///< the headline
    heading, ///< above a card; an alert's title
    body,
    callout, ///< second lines, sizes, notes
    record,  ///< equal widths, for the record of a run
};

QFont font(TextStyle style);

} // namespace kelmar
