#pragma once

#include "ui/page.hpp"

#include <string>

#import <AppKit/AppKit.h>

/// A symbol of the system's set by its name, the icon that the desktop shows for a file, or the
/// program's own icon.
@interface KelmarIconView : NSImageView {
    NSString* shown_;
}

+ (instancetype)icon;

- (void)showSymbol:(const std::string&)name tint:(kelmar::Tint)tint pointSize:(CGFloat)pointSize;
- (void)showIconOfFile:(const std::string&)path;
- (void)showApplicationIcon;

/// Asks for the icon anew when it is shown next: what is at the same path may be another file.
- (void)forget;

/// Says what the icon means to somebody who can't see it. Without, it is passed over: what stands
/// beside it says all.
- (void)setMeaning:(const std::string&)meaning;

@end
