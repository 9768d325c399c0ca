// Apple Developer Documentation: AppKit, NSTextField
#pragma once

#import <AppKit/NSColor.h>
#import <AppKit/NSControl.h>

@interface NSTextField : NSControl
@property (nullable, copy) NSColor *textColor;
@property BOOL drawsBackground;
@property (getter=isBordered) BOOL bordered;
@property (getter=isBezeled) BOOL bezeled;
@property (getter=isEditable) BOOL editable;
@property (getter=isSelectable) BOOL selectable;
@end
