#pragma once

#import <AppKit/AppKit.h>

/// Stands for the Mac's sheets (macOS 10.9). GNUstep's wait inside the call that begins them; these
/// don't: the sheet is the key window over its parent, which gets no mouse clicks meanwhile.
@interface NSWindow (KelmarSheets)

- (void)endSheet:(NSWindow*)sheet returnCode:(NSInteger)code;

- (void)attachSheet:(NSWindow*)sheet;
- (void)detachSheet;
- (NSWindow*)kelmarSheet;

@end

/// From now on a window under a sheet gets no clicks and no keys.
void KelmarInstallSheets();
