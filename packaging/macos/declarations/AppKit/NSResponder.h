// Apple Developer Documentation: AppKit, NSResponder
#pragma once

#import <AppKit/NSEvent.h>

@interface NSResponder : NSObject
- (BOOL)performKeyEquivalent:(nonnull NSEvent *)event;
@end
