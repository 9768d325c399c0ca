#pragma once

#import <AppKit/AppKit.h>

/// What the window's labels are selected in. Copied, or dragged elsewhere, is the text without what
/// is drawn only to guide its lines: with that, a path would not be found again.
@interface KelmarFieldEditor : NSTextView

+ (instancetype)editor;

@end
