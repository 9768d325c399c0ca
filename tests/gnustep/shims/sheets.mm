#import "tests/gnustep/shims/sheets.h"

#import "tests/gnustep/shims/alert.h"
#import "tests/gnustep/shims/install.h"
#import "tests/gnustep/shims/side_values.h"

namespace {

using Send = void (*)(id, SEL, NSEvent*);

Send gnustepSend = nullptr;

void sendUnlessUnderASheet(id self, SEL command, NSEvent* event) {
    const NSEventType type = [event type];
    const bool isPress = type == NSLeftMouseDown || type == NSLeftMouseUp || type == NSKeyDown;
    if (!isPress || [self kelmarSheet] == nil) {
        gnustepSend(self, command, event);
    }
}

} // namespace

@implementation NSWindow (KelmarSheets)

- (void)attachSheet:(NSWindow*)sheet {
    [self keep:sheet under:@"sheet"];
    const NSRect frame = [self frame];
    const NSSize size = [sheet frame].size;
    [sheet setFrameOrigin:NSMakePoint(NSMidX(frame) - size.width / 2,
                                      NSMaxY(frame) - size.height - 60)];
    [sheet makeKeyAndOrderFront:nil];
}

- (void)detachSheet {
    [[self kelmarSheet] orderOut:nil];
    [self keep:nil under:@"sheet"];
    [self makeKeyWindow];
}

- (NSWindow*)kelmarSheet {
    return [self keptUnder:@"sheet"];
}

- (void)endSheet:(NSWindow*)sheet returnCode:(NSInteger)code {
    KelmarAlert* const alert = [KelmarAlert alertOfWindow:self];
    if ([alert window] == sheet) {
        [alert endWithCode:code];
    }
}

@end

void KelmarInstallSheets() {
    gnustepSend = KelmarReplace([NSWindow class], @selector(sendEvent:), sendUnlessUnderASheet);
}
