#pragma once

#include <string>

#import <AppKit/AppKit.h>

namespace kelmar::test {

/// Clicks in the middle of `view`: the window finds out what is there.
void click(NSView* view);

/// The same twice, the second before anything of the first has been drawn.
void doubleClick(NSView* view);

/// Presses a key of the screen's keyboard, by its X name: "Return", "Escape", "space", "Control+c".
/// It goes to the window that has the keyboard. The command key is the left Alt.
void press(const std::string& key);

/// Sends the application the event of a key held down: its characters, and that it repeats.
void sendRepeatedKey(NSWindow* window, NSString* characters);

} // namespace kelmar::test
