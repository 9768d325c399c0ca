// Apple Developer Documentation: Foundation, NSObject
#pragma once

#import <Foundation/NSObjCRuntime.h>
#import <objc/NSObject.h>
#import <os/availability.h>

@class NSData, NSError, NSString;
@class NSArray<__covariant ObjectType>, NSDictionary<__covariant KeyType, __covariant ObjectType>;
