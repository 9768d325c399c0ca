// Apple Developer Documentation: Foundation, NSDictionary
#pragma once

#import <Foundation/NSEnumerator.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject <NSFastEnumeration>
+ (instancetype)dictionaryWithObjectsAndKeys:(id)firstObject, ... NS_REQUIRES_NIL_TERMINATION;
- (nullable ObjectType)objectForKey:(KeyType)key;
@end

NS_ASSUME_NONNULL_END
