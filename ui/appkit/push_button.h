#pragma once

#include "ui/page.hpp"
#include "ui/window_actions.hpp"

#import <AppKit/AppKit.h>

/// A button of the page: its text, its key, and the action that it asks for.
@interface KelmarPushButton : NSButton {
    const kelmar::WindowActions* actions_;
    kelmar::Action action_;
}

/// `actions` outlive the button.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions;
+ (instancetype)buttonWithActions:(const kelmar::WindowActions*)actions;

- (void)render:(const kelmar::Button&)button;

@end

namespace kelmar {

/// What AppKit calls a key of a page's button; the empty text for none. A button of a page has one
/// key at most.
NSString* keyEquivalentOf(ButtonKey key);

} // namespace kelmar
