#import "tests/gnustep/shims/alignment.h"

namespace {

constexpr CGFloat pushButtonRoom = 5;

CGFloat roomAround(NSView* view) {
    const BOOL isButton = [view isKindOfClass:[NSButton class]];
    return isButton && [static_cast<NSButton*>(view) isBordered] &&
                   [static_cast<NSButton*>(view) bezelStyle] == NSBezelStyleRounded
               ? pushButtonRoom
               : 0;
}

} // namespace

@implementation NSView (KelmarAlignment)

- (NSRect)alignmentRectForFrame:(NSRect)frame {
    return NSInsetRect(frame, roomAround(self), roomAround(self));
}

- (NSRect)frameForAlignmentRect:(NSRect)rect {
    return NSInsetRect(rect, -roomAround(self), -roomAround(self));
}

@end
