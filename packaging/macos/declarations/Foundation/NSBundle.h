// Apple Developer Documentation: Foundation, NSBundle
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSBundle : NSObject
@property (class, readonly, strong) NSBundle *mainBundle;
- (nullable NSString *)pathForResource:(nullable NSString *)name ofType:(nullable NSString *)extension;
@end

NS_ASSUME_NONNULL_END
