#pragma once

#include "ui/look.hpp"

#include <QFont>

namespace kelmar {

/// The desktop's own font, general or monospaced, in the size and weight of `style`.
QFont fontOf(TextStyle style);

/// The height of a line of text in that font.
int lineHeight(TextStyle style);

/// `length` of something that stands beside text, as much longer as the desktop's text is larger
/// than the look's; never shorter.
int grown(int length);

} // namespace kelmar
