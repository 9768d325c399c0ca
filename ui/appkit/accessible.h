#pragma once

#include <string>

#import <AppKit/AppKit.h>

/// What a view tells a screen reader. For a control that is drawn by one cell, that cell is what is
/// exposed: these tell both. Names and help may hold names of files, and are made harmless as the
/// drawn text is.
namespace kelmar {

/// Whether the view is spoken of at all.
void setAccessible(NSView* view, bool accessible);

void setAccessibleName(NSView* view, const std::string& name);

/// What a text says, where it is drawn with more than that.
void setAccessibleValue(NSView* view, const std::string& value);

void setAccessibleHelp(NSView* view, const std::string& help);

/// A text that begins a part of the page: screen readers go from one to the next.
void setHeading(NSView* view);

/// For a control that unfolds something: whether it has.
void setUnfolded(NSView* view, bool unfolded);

/// Says something that nobody asked for, when a screen reader is on.
void announce(const std::string& text);

} // namespace kelmar
