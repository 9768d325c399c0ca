// Apple Developer Documentation: AppKit, NSProgressIndicator, NSProgressIndicatorStyle
#pragma once

#import <AppKit/NSCell.h>
#import <AppKit/NSView.h>

typedef NS_ENUM(NSUInteger, NSProgressIndicatorStyle) {
    NSProgressIndicatorStyleSpinning = 1,
};

@interface NSProgressIndicator : NSView
@property NSProgressIndicatorStyle style;
@property NSControlSize controlSize;
@property (getter=isIndeterminate) BOOL indeterminate;
- (void)startAnimation:(nullable id)sender;
- (void)stopAnimation:(nullable id)sender;
@end
