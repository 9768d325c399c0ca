// Apple Developer Documentation: Foundation, NSAppleScript, NSAppleEventDescriptor
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT NSString *const NSAppleScriptErrorMessage;
FOUNDATION_EXPORT NSString *const NSAppleScriptErrorNumber;

@interface NSAppleEventDescriptor : NSObject
@end

@interface NSAppleScript : NSObject
- (nullable instancetype)initWithSource:(NSString *)source;
- (BOOL)compileAndReturnError:(NSDictionary<NSString *, id> *_Nullable *_Nullable)errorInformation;
- (NSAppleEventDescriptor *)executeAndReturnError:(NSDictionary<NSString *, id> *_Nullable *_Nullable)errorInformation;
@end

NS_ASSUME_NONNULL_END
