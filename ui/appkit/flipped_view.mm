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

void insertSubview(NSView* parent, NSView* view, NSView* before) {
    [parent addSubview:view positioned:before != nil ? NSWindowAbove : NSWindowBelow
            relativeTo:before];
}

NSSize alignedSize(NSView* view) {
    return [view alignmentRectForFrame:[view frame]].size;
}

void setAlignedFrame(NSView* view, NSRect frame) {
    setFrame(view, [view frameForAlignmentRect:frame]);
}

void setFrame(NSView* view, NSRect frame) {
    if (!NSEqualRects([view frame], frame)) {
        [view setFrame:frame];
    }
}

} // namespace kelmar
