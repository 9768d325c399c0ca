#include "ui/appkit/colours.h"

namespace kelmar {

NSColor* colourOf(Tint tint) {
    switch (tint) {
    case Tint::green:
        return [NSColor systemGreenColor];
    case Tint::orange:
        return [NSColor systemOrangeColor];
    case Tint::secondary:
        break;
    }
    return [NSColor secondaryLabelColor];
}

} // namespace kelmar
