#import "tests/gnustep/shims/windows.h"

#import "tests/gnustep/shims/side_values.h"

namespace {

BOOL allowsTabs = YES;

} // namespace

@implementation NSWindow (KelmarWindows)

+ (void)setAllowsAutomaticWindowTabbing:(BOOL)allows {
    allowsTabs = allows;
}

+ (BOOL)allowsAutomaticWindowTabbing {
    return allowsTabs;
}

- (void)setRestorable:(BOOL)restorable {
    [self keep:[NSNumber numberWithBool:restorable] under:@"restorable"];
}

- (BOOL)isRestorable {
    NSNumber* const told = [self keptUnder:@"restorable"];
    return told == nil || [told boolValue];
}

- (void)setPreventsApplicationTerminationWhenModal:(BOOL)prevents {
    [self keep:[NSNumber numberWithBool:prevents] under:@"preventsTermination"];
}

- (BOOL)preventsApplicationTerminationWhenModal {
    NSNumber* const told = [self keptUnder:@"preventsTermination"];
    return told == nil || [told boolValue];
}

@end

@implementation NSApplication (KelmarWindows)

- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy {
    [self keep:[NSNumber numberWithInteger:policy] under:@"activationPolicy"];
    return YES;
}

- (NSApplicationActivationPolicy)activationPolicy {
    NSNumber* const told = [self keptUnder:@"activationPolicy"];
    return told == nil ? NSApplicationActivationPolicyProhibited : [told integerValue];
}

@end
