#pragma once

#include "ui/look.hpp"

#include <QFont>

namespace kelmar {

/// The desktop's own font, general or monospaced, in the size and weight of `style`.
QFont fontOf(TextStyle style);

/// The height of a line of text in that font.
int lineHeight(TextStyle style);

/// Scales `length`, of something beside text, by the ratio of the desktop's text size to the
/// look's; never shrinks it.
int grown(int length);

} // namespace kelmar
