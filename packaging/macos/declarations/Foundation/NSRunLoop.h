// Apple Developer Documentation: Foundation, NSRunLoop.Mode; NSObject, performSelector:withObject:afterDelay:inModes:
#pragma once

#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef double NSTimeInterval;
typedef NSString *NSRunLoopMode;

FOUNDATION_EXPORT const NSRunLoopMode NSDefaultRunLoopMode;

@interface NSObject (NSDelayedPerforming)
- (void)performSelector:(SEL)selector withObject:(nullable id)argument afterDelay:(NSTimeInterval)delay inModes:(NSArray<NSRunLoopMode> *)modes;
+ (void)cancelPreviousPerformRequestsWithTarget:(id)target;
@end

NS_ASSUME_NONNULL_END
