#pragma once

#import <AppKit/AppKit.h>

/// Stands for the room that the Mac's controls keep around themselves (macOS 10.7). Here push
/// buttons and disclosure triangles have some, so that a layout by frames shows itself; nothing
/// else has.
@interface NSView (KelmarAlignment)
- (NSRect)alignmentRectForFrame:(NSRect)frame;
- (NSRect)frameForAlignmentRect:(NSRect)rect;
@end
