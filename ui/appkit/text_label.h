#pragma once

#include "ui/look.hpp"

#include <string>

#import <AppKit/AppKit.h>

/// A text that wraps, or one line that loses its middle when there is no room for it.
@interface KelmarTextLabel : NSTextField {
    CGFloat measuredWidth_;
    CGFloat measuredHeight_;
}

- (instancetype)initWithStyle:(kelmar::TextStyle)style
                         tone:(kelmar::TextTone)tone
                        wraps:(BOOL)wraps;
+ (instancetype)labelWithStyle:(kelmar::TextStyle)style tone:(kelmar::TextTone)tone;
+ (instancetype)lineWithStyle:(kelmar::TextStyle)style tone:(kelmar::TextTone)tone;

/// Shows `text`, which may hold any bytes: what would break the line or turn it is made visible.
/// What is drawn only to guide the lines is not read aloud.
- (void)showText:(const std::string&)text;

- (void)setTone:(kelmar::TextTone)tone;

/// The height that the text takes at this width, and the width of its longest line, in points.
- (CGFloat)heightForWidth:(CGFloat)width;
- (CGFloat)naturalWidth;

@end

namespace kelmar {

/// Gives `label` the frame at (x, y) with the height that it takes at `width`; answers the y below.
CGFloat place(KelmarTextLabel* label, CGFloat x, CGFloat y, CGFloat width);

} // namespace kelmar
