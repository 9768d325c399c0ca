// Apple Developer Documentation: AppKit, NSView, NSAutoresizingMaskOptions
#pragma once

#import <AppKit/NSAccessibilityProtocols.h>
#import <AppKit/NSGraphics.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

@class NSWindow;

typedef NS_OPTIONS(NSUInteger, NSAutoresizingMaskOptions) {
    NSViewWidthSizable = 2,
};

@interface NSView : NSResponder <NSAccessibility>
- (instancetype)initWithFrame:(NSRect)frame NS_DESIGNATED_INITIALIZER;
@property NSRect frame;
@property NSRect bounds;
@property NSAutoresizingMaskOptions autoresizingMask;
@property BOOL needsDisplay;
@property (nullable, copy) NSString *toolTip;
@property (getter=isHidden) BOOL hidden;
@property (readonly, getter=isFlipped) BOOL flipped;
- (void)addSubview:(NSView *)view;
- (void)addSubview:(NSView *)view positioned:(NSWindowOrderingMode)place relativeTo:(nullable NSView *)otherView;
- (NSRect)alignmentRectForFrame:(NSRect)frame;
- (NSRect)frameForAlignmentRect:(NSRect)alignmentRect;
- (void)removeFromSuperview;
- (void)setFrameSize:(NSSize)size;
- (void)drawRect:(NSRect)dirty;
- (void)scrollPoint:(NSPoint)point;
@end

NS_ASSUME_NONNULL_END
