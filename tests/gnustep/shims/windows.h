#pragma once

#import <AppKit/AppKit.h>

/// Stands for what the Mac's windows know about being opened again after a restart (macOS 10.7) and
/// about ending the application under a question (macOS 10.6). Kept, for tests to read.
@interface NSWindow (KelmarWindows)
- (void)setRestorable:(BOOL)restorable;
- (BOOL)isRestorable;
- (void)setPreventsApplicationTerminationWhenModal:(BOOL)prevents;
- (BOOL)preventsApplicationTerminationWhenModal;
// Windows in tabs (macOS 10.12).
+ (void)setAllowsAutomaticWindowTabbing:(BOOL)allows;
+ (BOOL)allowsAutomaticWindowTabbing;
@end

/// Stands for what the Mac asks an application's delegate (macOS 12).
@interface NSObject (KelmarWindows)
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)application;
@end

/// Stands for whether an application has a menu and a place in the Dock (macOS 10.6). Kept.
@interface NSApplication (KelmarWindows)
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (NSApplicationActivationPolicy)activationPolicy;
@end
