#include "ui/appkit/flipped_view.h"

@implementation KelmarFlippedView

- (BOOL)isFlipped {
    return YES;
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    static_cast<void>(width);
    return 0;
}

@end

namespace kelmar {

CGFloat place(KelmarFlippedView* view, CGFloat x, CGFloat y, CGFloat width) {
    const CGFloat height = [view layOutForWidth:width];
    setFrame(view, NSMakeRect(x, y, width, height));
    return y + height;
}

void setFrame(NSView* view, NSRect frame) {
    if (!NSEqualRects([view frame], frame)) {
        [view setFrame:frame];
    }
}

} // namespace kelmar
