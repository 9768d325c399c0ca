// Apple Developer Documentation: Foundation, NSString
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSUInteger NSStringEncoding;

enum : NSStringEncoding {
    NSUTF8StringEncoding = 4,
};

@interface NSString : NSObject
- (nullable instancetype)initWithBytes:(const void *)bytes length:(NSUInteger)length encoding:(NSStringEncoding)encoding;
- (BOOL)isEqualToString:(NSString *)other;
- (NSString *)substringWithRange:(NSRange)range;
- (NSString *)stringByAppendingString:(NSString *)other;
- (nullable NSData *)dataUsingEncoding:(NSStringEncoding)encoding allowLossyConversion:(BOOL)lossy;
@end

NS_ASSUME_NONNULL_END
