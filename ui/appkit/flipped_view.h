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

/// Gives `view` this frame unless it has it.
void setFrame(NSView* view, NSRect frame);

} // namespace kelmar
