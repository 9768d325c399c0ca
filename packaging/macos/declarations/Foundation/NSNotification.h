// Apple Developer Documentation: Foundation, NSNotification
#pragma once

#import <Foundation/NSObject.h>

@interface NSNotification : NSObject
@end
