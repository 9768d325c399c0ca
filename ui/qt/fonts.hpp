#pragma once

#include "ui/look.hpp"

#include <QFont>

namespace kelmar {

/// The desktop's own font, general or monospaced, in the size and weight of `style`.
QFont fontOf(TextStyle style);

} // namespace kelmar
