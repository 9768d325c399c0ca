#pragma once

#include "ui/page.hpp"
#include "ui/window_actions.hpp"

#import <AppKit/AppKit.h>

/// The question before data is deleted, as a sheet of the window.
@interface KelmarConfirmationSheet : NSObject {
    const kelmar::WindowActions* actions_;
    NSWindow* window_;
    NSAlert* alert_;
    kelmar::Confirmation* shown_;
    BOOL isBegun_;
}

/// `actions` and `window` outlive the sheet.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions window:(NSWindow*)window;

/// Shows the question, changes its texts, or takes it away (absent). Taken away, it is no answer.
/// Beginning it may run an event loop of its own, and so it is done in a later turn of this one.
- (void)render:(const std::optional<kelmar::Confirmation>&)confirmation;

/// Null while there is none.
- (NSAlert*)alert;

@end
