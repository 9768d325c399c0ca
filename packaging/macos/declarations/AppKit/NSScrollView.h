// Apple Developer Documentation: AppKit, NSScrollView, NSClipView, NSBorderType
#pragma once

#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSBorderType) {
    NSNoBorder = 0,
};

@interface NSClipView : NSView
@property (readonly) NSRect documentVisibleRect;
@end

@interface NSScrollView : NSView
@property (strong) NSClipView *contentView;
@property (nullable, strong) __kindof NSView *documentView;
@property (readonly) NSSize contentSize;
@property NSBorderType borderType;
@property BOOL drawsBackground;
@property BOOL hasVerticalScroller;
@property BOOL hasHorizontalScroller;
@property BOOL autohidesScrollers;
- (void)reflectScrolledClipView:(NSClipView *)clipView;
- (void)tile;
@end

NS_ASSUME_NONNULL_END
