// Apple Developer Documentation: Foundation, NSFormatter
#pragma once

#import <Foundation/NSObject.h>

@interface NSFormatter : NSObject
@end
