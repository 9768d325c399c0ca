// Apple Developer Documentation: Foundation, NSFastEnumeration, NSEnumerator
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

// What the compiler makes of "for (Object *each in collection)" fills this record.
typedef struct {
    unsigned long state;
    id _Nullable *_Nullable itemsPtr;
    unsigned long *_Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state objects:(id _Nullable[_Nonnull])buffer count:(NSUInteger)length;
@end

@interface NSEnumerator<ObjectType> : NSObject <NSFastEnumeration>
@end

NS_ASSUME_NONNULL_END
