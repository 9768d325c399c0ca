#import "tests/gnustep/shims/accessibility.h"

#import "tests/gnustep/shims/install.h"
#import "tests/gnustep/shims/side_values.h"

namespace {

NSString* keptLabel(id self, SEL /*command*/) {
    return [self keptUnder:@"label"];
}

BOOL press(id self, SEL /*command*/) {
    [self performClick:nil];
    return YES;
}

} // namespace

@implementation NSObject (KelmarAccessibility)

- (void)setAccessibilityElement:(BOOL)element {
    [self keep:[NSNumber numberWithBool:element] under:@"element"];
}

- (BOOL)isAccessibilityElement {
    NSNumber* const told = [self keptUnder:@"element"];
    return told != nil
               ? [told boolValue]
               : [self isKindOfClass:[NSControl class]] || [self isKindOfClass:[NSCell class]];
}

- (void)setAccessibilityLabel:(NSString*)value {
    [self keep:value under:@"label"];
}

- (NSString*)accessibilityLabel {
    return [self keptUnder:@"label"];
}

- (void)setAccessibilityTitle:(NSString*)value {
    [self keep:value under:@"title"];
}

- (NSString*)accessibilityTitle {
    return [self keptUnder:@"title"];
}

- (void)setAccessibilityHelp:(NSString*)value {
    [self keep:value under:@"help"];
}

- (NSString*)accessibilityHelp {
    return [self keptUnder:@"help"];
}

- (void)setAccessibilityValue:(id)value {
    [self keep:value under:@"value"];
}

- (id)accessibilityValue {
    return [self keptUnder:@"value"];
}

- (void)setAccessibilityRole:(NSString*)value {
    [self keep:value under:@"role"];
}

- (NSString*)accessibilityRole {
    return [self keptUnder:@"role"];
}

- (void)setAccessibilitySubrole:(NSString*)value {
    [self keep:value under:@"subrole"];
}

- (NSString*)accessibilitySubrole {
    return [self keptUnder:@"subrole"];
}

- (void)setAccessibilityRoleDescription:(NSString*)value {
    [self keep:value under:@"roleDescription"];
}

- (NSString*)accessibilityRoleDescription {
    return [self keptUnder:@"roleDescription"];
}

- (void)setAccessibilityIdentifier:(NSString*)value {
    [self keep:value under:@"identifier"];
}

- (NSString*)accessibilityIdentifier {
    return [self keptUnder:@"identifier"];
}

- (void)setAccessibilityTitleUIElement:(id)value {
    [self keep:value under:@"titleUIElement"];
}

- (id)accessibilityTitleUIElement {
    return [self keptUnder:@"titleUIElement"];
}

- (void)setAccessibilityChildren:(NSArray*)value {
    [self keep:value under:@"children"];
}

- (NSArray*)accessibilityChildren {
    return [self keptUnder:@"children"];
}

- (void)setAccessibilityExpanded:(BOOL)expanded {
    [self keep:[NSNumber numberWithBool:expanded] under:@"expanded"];
}

- (BOOL)isAccessibilityExpanded {
    return [[self keptUnder:@"expanded"] boolValue];
}

- (BOOL)accessibilityPerformPress {
    NSControl* const control =
        [self isKindOfClass:[NSCell class]]
            ? static_cast<NSControl*>([static_cast<NSCell*>(self) controlView])
            : static_cast<NSControl*>(self);
    [control performClick:nil];
    return YES;
}

@end

void KelmarInstallAccessibility() {
    KelmarReplace([NSSwitch class], @selector(accessibilityLabel), keptLabel);
    KelmarReplace([NSSwitch class], @selector(accessibilityPerformPress), press);
}
