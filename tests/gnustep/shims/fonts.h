#pragma once

#import <AppKit/AppKit.h>

/// Stands for the Mac's fonts by weight and with digits of equal width. Here there are two weights,
/// and digits as the system font has them.
@interface NSFont (KelmarFonts)
+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;
+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;
+ (NSFont*)monospacedSystemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;
@end
