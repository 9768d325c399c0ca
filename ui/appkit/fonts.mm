#include "ui/appkit/fonts.h"

namespace kelmar {

NSFont* fontOf(TextStyle style) {
    const TextLook look = lookOf(style);
    const NSFontWeight weight =
        look.weight == TextWeight::semibold ? NSFontWeightSemibold : NSFontWeightRegular;
    switch (look.face) {
    case TextFace::equalDigits:
        return [NSFont monospacedDigitSystemFontOfSize:look.points weight:weight];
    case TextFace::monospaced:
        return [NSFont monospacedSystemFontOfSize:look.points weight:weight];
    case TextFace::proportional:
        break;
    }
    return [NSFont systemFontOfSize:look.points weight:weight];
}

} // namespace kelmar
