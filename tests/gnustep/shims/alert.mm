#import "tests/gnustep/shims/alert.h"

#import "tests/gnustep/shims/sheets.h"

namespace {

constexpr CGFloat width = 420;
constexpr CGFloat margin = 20;

bool answersLater = false;

NSTextField* label(NSRect frame) {
    NSTextField* const field = [[[NSTextField alloc] initWithFrame:frame] autorelease];
    [field setEditable:NO];
    [field setSelectable:NO];
    [field setBezeled:NO];
    [field setDrawsBackground:NO];
    return field;
}

NSMutableArray* begun() {
    static NSMutableArray* const alerts = [NSMutableArray new];
    return alerts;
}

} // namespace

@implementation KelmarAlert

- (instancetype)init {
    self = [super init];
    panel_ = [[NSPanel alloc] initWithContentRect:NSMakeRect(0, 0, width, 170)
                                        styleMask:NSWindowStyleMaskTitled
                                          backing:NSBackingStoreBuffered
                                            defer:NO];
    [panel_ setReleasedWhenClosed:NO];
    message_ = label(NSMakeRect(margin, 130, width - 2 * margin, 20));
    information_ = label(NSMakeRect(margin, 60, width - 2 * margin, 60));
    [[panel_ contentView] addSubview:message_];
    [[panel_ contentView] addSubview:information_];
    buttons_ = [NSMutableArray new];
    return self;
}

- (void)dealloc {
    for (NSButton* button in buttons_) {
        [button setTarget:nil];
    }
    [panel_ release];
    [buttons_ release];
    [super dealloc];
}

- (NSButton*)addButtonWithTitle:(NSString*)title {
    NSButton* const button = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
    [button setTitle:title];
    [button setBezelStyle:NSRoundedBezelStyle];
    [button setButtonType:NSMomentaryPushInButton];
    [button setTag:NSAlertFirstButtonReturn + static_cast<NSInteger>([buttons_ count])];
    [button setTarget:self];
    [button setAction:@selector(press:)];
    if ([buttons_ count] == 0) {
        [button setKeyEquivalent:@"\r"];
    } else if ([title isEqualToString:@"Cancel"]) {
        [button setKeyEquivalent:@"\033"];
    }
    [buttons_ addObject:button];
    [[panel_ contentView] addSubview:button];
    [self layout];
    return button;
}

- (void)layout {
    CGFloat right = width - margin;
    for (NSButton* button in buttons_) {
        [button sizeToFit];
        const NSSize size = [button frame].size;
        right -= size.width;
        [button setFrame:NSMakeRect(right, margin, size.width, size.height)];
        right -= margin / 2;
    }
}

- (NSArray*)buttons {
    return buttons_;
}

- (void)setAlertStyle:(NSAlertStyle)style {
    style_ = style;
}

- (NSAlertStyle)alertStyle {
    return style_;
}

- (void)setMessageText:(NSString*)text {
    [message_ setStringValue:text];
}

- (NSString*)messageText {
    return [message_ stringValue];
}

- (void)setInformativeText:(NSString*)text {
    [information_ setStringValue:text];
}

- (NSString*)informativeText {
    return [information_ stringValue];
}

- (NSPanel*)window {
    return panel_;
}

- (void)press:(id)sender {
    [self endWithCode:[sender tag]];
}

- (void)beginSheetModalForWindow:(NSWindow*)window
                   modalDelegate:(id)delegate
                  didEndSelector:(SEL)didEnd
                     contextInfo:(void*)context {
    parent_ = window;
    delegate_ = delegate;
    didEnd_ = didEnd;
    context_ = context;
    [begun() addObject:self];
    [self layout];
    [parent_ attachSheet:panel_];
    for (NSButton* button in buttons_) {
        if ([[button keyEquivalent] isEqualToString:@"\r"]) {
            [panel_ setDefaultButtonCell:[button cell]];
        }
    }
}

- (void)endWithCode:(NSInteger)code {
    if (parent_ == nil || isEnding_) {
        return;
    }
    isEnding_ = YES;
    NSNumber* const answer = [NSNumber numberWithInteger:code];
    if (answersLater) {
        [self performSelector:@selector(tell:) withObject:answer afterDelay:0];
    } else {
        [self tell:answer];
    }
}

- (void)tell:(NSNumber*)code {
    using Tell = void (*)(id, SEL, KelmarAlert*, NSInteger, void*);
    [[self retain] autorelease];
    [begun() removeObject:self];
    // The delegate is told while the sheet is still there.
    const auto tell = reinterpret_cast<Tell>([delegate_ methodForSelector:didEnd_]);
    tell(delegate_, didEnd_, self, [code integerValue], context_);
    [parent_ detachSheet];
    parent_ = nil;
}

+ (void)setAnswersLater:(BOOL)later {
    answersLater = later;
}

+ (KelmarAlert*)alertOfWindow:(NSWindow*)window {
    for (KelmarAlert* alert in begun()) {
        if (alert->parent_ == window && !alert->isEnding_) {
            return alert;
        }
    }
    return nil;
}

@end
