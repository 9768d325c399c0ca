// Apple Developer Documentation: Foundation, NSBundle
#pragma once

#import <Foundation/NSDictionary.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSBundle : NSObject
@property (class, readonly, strong) NSBundle *mainBundle;
@property (nullable, readonly, copy) NSDictionary<NSString *, id> *infoDictionary;
- (nullable NSString *)pathForResource:(nullable NSString *)name ofType:(nullable NSString *)extension;
@end

NS_ASSUME_NONNULL_END
