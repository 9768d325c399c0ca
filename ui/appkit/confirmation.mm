#include "ui/appkit/confirmation.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/from_toolkit.hpp"
#include "ui/appkit/push_button.h"
#include "ui/appkit/run_loop_modes.h"

#include <utility>

/// Presses a button by Escape. A button has one key, and the way out is to have both Return, which
/// an alert gives to its first button otherwise, and Escape.
@interface KelmarEscapeKey : NSView {
    NSButton* button_;
}

- (instancetype)initForButton:(NSButton*)button;
+ (instancetype)keyForButton:(NSButton*)button;

@end

@implementation KelmarEscapeKey

- (instancetype)initForButton:(NSButton*)button {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        button_ = button;
    }
    return self;
}

+ (instancetype)keyForButton:(NSButton*)button {
    return [[[self alloc] initForButton:button] autorelease];
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
    if (![[event charactersIgnoringModifiers] isEqualToString:@"\033"]) {
        return [super performKeyEquivalent:event];
    }
    [button_ performClick:nil];
    return YES;
}

@end

@implementation KelmarConfirmationSheet

- (instancetype)initWithActions:(const kelmar::WindowActions*)actions window:(NSWindow*)window {
    self = [super init];
    if (self != nil) {
        actions_ = actions;
        window_ = window;
    }
    return self;
}

- (void)dealloc {
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
    [alert_ release];
    delete shown_;
    [super dealloc];
}

- (NSAlert*)alert {
    return alert_;
}

- (void)render:(const std::optional<kelmar::Confirmation>&)confirmation {
    if (!confirmation) {
        [self dismiss];
    } else if (shown_ == nullptr) {
        [self make:*confirmation];
        [self performSelector:@selector(begin) withObject:nil afterDelay:0
                      inModes:kelmar::everyRunLoopMode()];
    } else if (*shown_ != *confirmation) {
        *shown_ = *confirmation;
        [self showTexts];
        [alert_ layout];
    }
}

- (void)showTexts {
    [alert_ setMessageText:kelmar::foundationText(shown_->title)];
    [alert_ setInformativeText:kelmar::foundationText(shown_->message)];
}

- (void)make:(const kelmar::Confirmation&)confirmation {
    shown_ = new kelmar::Confirmation(confirmation);
    alert_ = [[NSAlert alloc] init];
    [alert_ setAlertStyle:NSAlertStyleWarning];
    [self showTexts];
    for (const kelmar::Button& button : shown_->buttons) {
        NSButton* const made = [alert_ addButtonWithTitle:kelmar::foundationText(button.text)];
        [made setHasDestructiveAction:button.destructive ? YES : NO];
        [made setKeyEquivalent:kelmar::keyEquivalentOf(button.key)];
        if (button.key == kelmar::ButtonKey::both) {
            [[[alert_ window] contentView] addSubview:[KelmarEscapeKey keyForButton:made]];
        }
    }
    // Quitting is refused by the application alone, and not by a question.
    [[alert_ window] setPreventsApplicationTerminationWhenModal:NO];
}

- (void)begin {
    if (alert_ == nil || isBegun_) {
        return;
    }
    isBegun_ = YES;
    // The alert's method that takes no block. It is deprecated for the one that does, which is all
    // that there is to it; its delegate is told the same, once, when the sheet is to go.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
    [alert_ beginSheetModalForWindow:window_ modalDelegate:self
                      didEndSelector:@selector(alertDidEnd:returnCode:contextInfo:)
                         contextInfo:nullptr];
#pragma clang diagnostic pop
}

- (void)dismiss {
    if (alert_ == nil) {
        return;
    }
    if (isBegun_) {
        [window_ endSheet:[alert_ window] returnCode:NSModalResponseAbort];
    } else {
        [self forget];
    }
}

/// What was shown; from now on nothing is.
- (kelmar::Confirmation)forget {
    [alert_ autorelease]; // it may be among those that called
    alert_ = nil;
    isBegun_ = NO;
    kelmar::Confirmation confirmation = *shown_;
    delete std::exchange(shown_, nullptr);
    return confirmation;
}

/// Any code but a button's is no answer to the question: the sheet was taken away.
- (void)alertDidEnd:(NSAlert*)alert returnCode:(NSModalResponse)code contextInfo:(void*)context {
    static_cast<void>(context);
    if (alert != alert_) {
        return;
    }
    [[alert window] orderOut:nil];
    const kelmar::Confirmation confirmation = [self forget];
    const NSModalResponse index = code - NSAlertFirstButtonReturn;
    const bool isButton =
        index >= 0 && index < static_cast<NSModalResponse>(confirmation.buttons.size());
    const kelmar::Action action = isButton
                                      ? confirmation.buttons[static_cast<std::size_t>(index)].action
                                      : kelmar::Action::dismissConfirmation;
    kelmar::fromToolkit([actions = actions_, action] { actions->perform(action); });
}

@end
