// Apple Developer Documentation: Foundation, NSData
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSData : NSObject
+ (instancetype)dataWithBytes:(nullable const void *)bytes length:(NSUInteger)length;
@property (readonly) NSUInteger length;
@property (readonly) const void *bytes;
@end

NS_ASSUME_NONNULL_END
