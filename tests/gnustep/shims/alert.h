#pragma once

#import <AppKit/AppKit.h>

/// Stands for the Mac's NSAlert. GNUstep's makes its panel only when it begins, allows it three
/// buttons of its own making, and as a sheet it waits inside the call. This one has what the
/// reference pages say of the Mac's: its panel and buttons are there from the start; the first
/// button has Return, one called "Cancel" has Escape, unless they are given other keys; a button's
/// code is 1000 and its number; and a sheet has begun when the call returns, and ends once.
@interface KelmarAlert : NSObject {
    NSPanel* panel_;
    NSTextField* message_;
    NSTextField* information_;
    NSMutableArray* buttons_;
    NSAlertStyle style_;
    NSWindow* parent_;
    id delegate_;
    SEL didEnd_;
    void* context_;
    BOOL isEnding_;
}

- (NSButton*)addButtonWithTitle:(NSString*)title;
- (NSArray*)buttons;
- (void)setAlertStyle:(NSAlertStyle)style;
- (NSAlertStyle)alertStyle;
- (void)setMessageText:(NSString*)text;
- (NSString*)messageText;
- (void)setInformativeText:(NSString*)text;
- (NSString*)informativeText;
- (NSPanel*)window;
- (void)layout;
- (void)beginSheetModalForWindow:(NSWindow*)window
                   modalDelegate:(id)delegate
                  didEndSelector:(SEL)didEnd
                     contextInfo:(void*)context;

/// The sheet is taken away and its delegate told, at once or in a later turn: tests ask for either,
/// since the reference says nothing about it.
- (void)endWithCode:(NSInteger)code;
+ (void)setAnswersLater:(BOOL)later;

/// The alert that is a sheet of `window` now; nil without one.
+ (KelmarAlert*)alertOfWindow:(NSWindow*)window;

@end

#define NSAlert KelmarAlert

constexpr auto NSAlertStyleWarning = NSWarningAlertStyle;
