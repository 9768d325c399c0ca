#pragma once

#import <AppKit/AppKit.h>

/// A view whose origin is its top left corner, and that lays out what is inside it by plain frames.
/// The page is made of these: each is told its width, places what it shows and says how high that
/// is. All views of this folder belong to the main thread.
@interface KelmarFlippedView : NSView

/// Places the subviews for a view of this width in points, and answers the height that they take.
/// Subclasses have their own; this one has nothing inside.
- (CGFloat)layOutForWidth:(CGFloat)width;

@end

namespace kelmar {

/// Lays `view` out at `width`, gives it the frame that begins at (x, y), and answers the y below
/// it. A frame that stays is left alone, so that nothing is drawn twice.
CGFloat place(KelmarFlippedView* view, CGFloat x, CGFloat y, CGFloat width);

/// Makes `view` a subview of `parent` that comes right after its subview `before`, or without one
/// ahead of all others.
void insertSubview(NSView* parent, NSView* view, NSView* before);

/// The size of a control without the room that it keeps around itself, for a shadow or a ring: the
/// part that lines up with other edges.
NSSize alignedSize(NSView* view);

/// Places that part of a control.
void setAlignedFrame(NSView* view, NSRect frame);

/// Gives `view` this frame unless it has it.
void setFrame(NSView* view, NSRect frame);

} // namespace kelmar
