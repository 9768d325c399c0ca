// Apple Developer Documentation: Foundation, NSByteCountFormatter, NSByteCountFormatterCountStyle
#pragma once

#import <Foundation/NSFormatter.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, NSByteCountFormatterCountStyle) {
    NSByteCountFormatterCountStyleFile = 0,
};

@interface NSByteCountFormatter : NSFormatter
+ (NSString *)stringFromByteCount:(long long)byteCount countStyle:(NSByteCountFormatterCountStyle)countStyle;
@end

NS_ASSUME_NONNULL_END
