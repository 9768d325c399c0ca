#import "tests/gnustep/shims/buttons.h"

#import "tests/gnustep/shims/side_values.h"

@implementation NSButton (KelmarButtons)

- (void)setHasDestructiveAction:(BOOL)destructive {
    [self keep:[NSNumber numberWithBool:destructive] under:@"hasDestructiveAction"];
}

- (BOOL)hasDestructiveAction {
    return [[self keptUnder:@"hasDestructiveAction"] boolValue];
}

@end

@implementation NSControl (KelmarControlSize)

- (void)setControlSize:(NSControlSize)size {
    [self keep:[NSNumber numberWithUnsignedInteger:size] under:@"controlSize"];
}

- (NSControlSize)controlSize {
    return static_cast<NSControlSize>([[self keptUnder:@"controlSize"] unsignedIntegerValue]);
}

@end
