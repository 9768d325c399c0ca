// Apple Developer Documentation: AppKit, NSAlert, NSAlertStyle
#pragma once

#import <AppKit/NSButton.h>
#import <AppKit/NSWindow.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSAlertStyle) {
    NSAlertStyleWarning = 0,
};

static const NSModalResponse NSAlertFirstButtonReturn = 1000;

@interface NSAlert : NSObject
@property NSAlertStyle alertStyle;
@property (copy) NSString *messageText;
@property (copy) NSString *informativeText;
@property (readonly, strong) NSWindow *window;
- (NSButton *)addButtonWithTitle:(NSString *)title;
- (void)layout;
- (void)beginSheetModalForWindow:(NSWindow *)window modalDelegate:(nullable id)delegate didEndSelector:(nullable SEL)selector contextInfo:(nullable void *)context API_DEPRECATED("Use -beginSheetModalForWindow:completionHandler: instead", macos(10.3, 10.10));
@end

NS_ASSUME_NONNULL_END
