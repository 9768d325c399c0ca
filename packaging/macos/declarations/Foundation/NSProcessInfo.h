// Apple Developer Documentation: Foundation, NSProcessInfo, NSActivityOptions
#pragma once

#import <Foundation/NSString.h>
#include <stdint.h>

NS_ASSUME_NONNULL_BEGIN

// With NSActivityIdleSystemSleepDisabled (1ULL << 20) in it, which keeps the system from sleeping.
typedef NS_OPTIONS(uint64_t, NSActivityOptions) {
    NSActivityUserInitiated = 0x00FFFFFFULL,
};

@interface NSProcessInfo : NSObject
@property (class, readonly, strong) NSProcessInfo *processInfo;
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString *)reason;
- (void)endActivity:(id<NSObject>)activity;
@end

NS_ASSUME_NONNULL_END
