#import "tests/gnustep/shims/fonts.h"

@implementation NSFont (KelmarFonts)

+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight {
    return weight > NSFontWeightRegular ? [self boldSystemFontOfSize:size]
                                        : [self systemFontOfSize:size];
}

+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight {
    return [self systemFontOfSize:size weight:weight];
}

+ (NSFont*)monospacedSystemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight {
    static_cast<void>(weight);
    return [self userFixedPitchFontOfSize:size];
}

@end
