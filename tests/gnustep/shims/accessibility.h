#pragma once

#import <AppKit/AppKit.h>

/// Stands for what the Mac's views tell a screen reader (NSAccessibility). Here it is kept, for
/// tests to read; nobody reads it out, and how the Mac does is not shown by it. As on the Mac, what
/// is not told is answered by what the view shows.
@interface NSObject (KelmarAccessibility)
- (void)setAccessibilityElement:(BOOL)element;
- (BOOL)isAccessibilityElement;
- (void)setAccessibilityLabel:(NSString*)label;
- (NSString*)accessibilityLabel;
- (void)setAccessibilityTitle:(NSString*)title;
- (NSString*)accessibilityTitle;
- (void)setAccessibilityHelp:(NSString*)help;
- (NSString*)accessibilityHelp;
- (void)setAccessibilityValue:(id)value;
- (id)accessibilityValue;
- (void)setAccessibilityRole:(NSString*)role;
- (NSString*)accessibilityRole;
- (void)setAccessibilitySubrole:(NSString*)subrole;
- (NSString*)accessibilitySubrole;
- (void)setAccessibilityRoleDescription:(NSString*)description;
- (NSString*)accessibilityRoleDescription;
- (void)setAccessibilityIdentifier:(NSString*)identifier;
- (NSString*)accessibilityIdentifier;
- (void)setAccessibilityTitleUIElement:(id)element;
- (id)accessibilityTitleUIElement;
- (void)setAccessibilityChildren:(NSArray*)children;
- (NSArray*)accessibilityChildren;
- (void)setAccessibilityExpanded:(BOOL)expanded;
- (BOOL)isAccessibilityExpanded;
/// A press through accessibility is a click, as it is for the Mac's controls and for their cells.
- (BOOL)accessibilityPerformPress;
@end

/// From now on views that GNUstep lets answer by themselves, and always nothing, answer what is
/// kept.
void KelmarInstallAccessibility();
