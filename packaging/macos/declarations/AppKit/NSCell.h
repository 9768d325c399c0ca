// Apple Developer Documentation: AppKit, NSCell, NSControlStateValue, NSControlSize, NSImageScaling
#pragma once

#import <AppKit/NSAccessibilityProtocols.h>
#import <AppKit/NSParagraphStyle.h>

typedef NSInteger NSControlStateValue;

static const NSControlStateValue NSControlStateValueOff = 0;
static const NSControlStateValue NSControlStateValueOn = 1;

typedef NS_ENUM(NSUInteger, NSControlSize) {
    NSControlSizeSmall = 1,
    NSControlSizeLarge = 3,
};

typedef NS_ENUM(NSUInteger, NSImageScaling) {
    NSImageScaleProportionallyDown = 0,
};

@interface NSCell : NSObject <NSAccessibility>
@property BOOL wraps;
@property NSLineBreakMode lineBreakMode;
@property (readonly) NSSize cellSize;
- (NSSize)cellSizeForBounds:(NSRect)bounds;
@end
