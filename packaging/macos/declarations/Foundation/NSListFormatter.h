// Apple Developer Documentation: Foundation, NSListFormatter
#pragma once

#import <Foundation/NSFormatter.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSListFormatter : NSFormatter
+ (NSString *)localizedStringByJoiningStrings:(NSArray<NSString *> *)strings;
@end

NS_ASSUME_NONNULL_END
