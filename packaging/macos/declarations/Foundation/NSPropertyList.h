// Apple Developer Documentation: Foundation, NSPropertyListSerialization,
// NSPropertyListMutabilityOptions, NSPropertyListFormat
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSPropertyListMutabilityOptions) {
    NSPropertyListImmutable = 0,
};

typedef NSPropertyListMutabilityOptions NSPropertyListReadOptions;

typedef NS_ENUM(NSUInteger, NSPropertyListFormat);

@interface NSPropertyListSerialization : NSObject
+ (nullable id)propertyListWithData:(NSData *)data options:(NSPropertyListReadOptions)options format:(nullable NSPropertyListFormat *)format error:(NSError *_Nullable *_Nullable)error;
@end

NS_ASSUME_NONNULL_END
