#pragma once

#import <AppKit/AppKit.h>

/// Stands for the Mac's warning look of a button (macOS 11). Kept, for tests to read.
@interface NSButton (KelmarButtons)
- (void)setHasDestructiveAction:(BOOL)destructive;
- (BOOL)hasDestructiveAction;
@end

/// Stands for controls in sizes (macOS 10.10), and the large one among them (macOS 11). Kept; they
/// are drawn in one size.
constexpr NSControlSize NSControlSizeLarge = static_cast<NSControlSize>(3);

@interface NSControl (KelmarControlSize)
- (void)setControlSize:(NSControlSize)size;
- (NSControlSize)controlSize;
@end
