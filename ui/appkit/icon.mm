#include "ui/appkit/icon.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/accessible.h"
#include "ui/appkit/colours.h"

@implementation KelmarIconView

+ (instancetype)icon {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        [self setImageScaling:NSImageScaleProportionallyDown];
        [self setEditable:NO];
        [self setRefusesFirstResponder:YES]; // nor is it a stop for the keyboard
        kelmar::setAccessible(self, false);
    }
    return self;
}

- (void)dealloc {
    [shown_ release];
    [super dealloc];
}

/// Whether `description` is not what is shown already; from now on it is.
- (BOOL)begin:(NSString*)description {
    if ([shown_ isEqualToString:description]) {
        return NO;
    }
    [shown_ release];
    shown_ = [description copy];
    return YES;
}

- (void)showSymbol:(const std::string&)name tint:(kelmar::Tint)tint pointSize:(CGFloat)pointSize {
    NSString* const symbol = kelmar::foundationText(name);
    if (![self begin:[@"symbol " stringByAppendingString:symbol]]) {
        return;
    }
    NSImage* const image = [NSImage imageWithSystemSymbolName:symbol accessibilityDescription:nil];
    NSImageSymbolConfiguration* const configuration =
        [NSImageSymbolConfiguration configurationWithPointSize:pointSize
                                                        weight:NSFontWeightRegular];
    [self setSymbolConfiguration:configuration];
    [self setContentTintColor:kelmar::colourOf(tint)];
    [self setImage:image];
}

- (void)showIconOfFile:(const std::string&)path {
    NSString* const file = kelmar::foundationText(path);
    if ([self begin:[@"file " stringByAppendingString:file]]) {
        [self setImage:[[NSWorkspace sharedWorkspace] iconForFile:file]];
    }
}

- (void)forget {
    [shown_ release];
    shown_ = nil;
}

- (void)showApplicationIcon {
    if ([self begin:@"application"]) {
        [self setImage:[NSApp applicationIconImage]];
    }
}

- (void)setMeaning:(const std::string&)meaning {
    kelmar::setAccessible(self, !meaning.empty());
    kelmar::setAccessibleName(self, meaning);
}

@end
