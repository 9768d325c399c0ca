#import "tests/gnustep/shims/alignment.h"

namespace {

constexpr CGFloat pushButtonRoom = 5;
constexpr CGFloat triangleRoom = 2;

CGFloat roomAround(NSView* view) {
    if (![view isKindOfClass:[NSButton class]] || ![static_cast<NSButton*>(view) isBordered]) {
        return 0;
    }
    switch ([static_cast<NSButton*>(view) bezelStyle]) {
    case NSBezelStyleRounded:
        return pushButtonRoom;
    case NSBezelStyleDisclosure:
        return triangleRoom;
    default:
        return 0;
    }
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
