// Apple Developer Documentation: AppKit, NSRunningApplication
#pragma once

#import <AppKit/AppKitDefines.h>
#import <sys/types.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSRunningApplication : NSObject
+ (NSArray<NSRunningApplication *> *)runningApplicationsWithBundleIdentifier:(NSString *)bundleIdentifier;
@property (readonly) pid_t processIdentifier;
- (BOOL)terminate;
- (BOOL)forceTerminate;
@end

NS_ASSUME_NONNULL_END
