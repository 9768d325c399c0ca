// Apple Developer Documentation: Foundation, NSValue, NSNumber
#pragma once

#import <Foundation/NSObject.h>

@interface NSValue : NSObject
@end

@interface NSNumber : NSValue
+ (nonnull NSNumber *)numberWithInteger:(NSInteger)value;
@property (readonly) long long longLongValue;
@end
