// Apple Developer Documentation: AppKit, NSImage, NSImageSymbolConfiguration
#pragma once

#import <AppKit/NSFont.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSImage : NSObject
+ (nullable instancetype)imageWithSystemSymbolName:(NSString *)name accessibilityDescription:(nullable NSString *)description;
@end

@interface NSImageSymbolConfiguration : NSObject
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
@end

NS_ASSUME_NONNULL_END
