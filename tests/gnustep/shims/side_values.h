#pragma once

#import <AppKit/AppKit.h>

/// What the shims remember about a view, a cell or a window that GNUstep has no room for, by name.
/// Forgotten with it. On the main thread only.
@interface NSObject (KelmarSideValues)
- (void)keep:(id)value under:(NSString*)name;
- (id)keptUnder:(NSString*)name;
@end

/// From now on they are forgotten.
void KelmarInstallSideValues();
