#pragma once

#import <AppKit/AppKit.h>

/// Fades out the scrolled content at one edge, so that it never touches the line there. Takes no
/// clicks.
@interface KelmarVeil : NSView {
    BOOL above_;
}

/// At the top or at the bottom of the content.
+ (instancetype)veilAtTop:(BOOL)above;

@end
