// Apple Developer Documentation: Foundation, NSUserName, NSHomeDirectory, NSHomeDirectoryForUser, NSTemporaryDirectory
#pragma once

#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT NSString *NSUserName(void);
FOUNDATION_EXPORT NSString *NSHomeDirectory(void);
FOUNDATION_EXPORT NSString *_Nullable NSHomeDirectoryForUser(NSString *_Nullable userName);
FOUNDATION_EXPORT NSString *NSTemporaryDirectory(void);

NS_ASSUME_NONNULL_END
