#pragma once

#import <AppKit/AppKit.h>

/// Stands for those of the Mac's colours that GNUstep has no name for. It follows no appearance.
@interface NSColor (KelmarColours)
+ (NSColor*)separatorColor;
@end
