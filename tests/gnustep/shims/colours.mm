#import "tests/gnustep/shims/colours.h"

@implementation NSColor (KelmarColours)

+ (NSColor*)separatorColor {
    return [NSColor colorWithCalibratedWhite:0 alpha:0.1];
}

@end
