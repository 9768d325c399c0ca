// Apple Developer Documentation: AppKit, NSImageView
#pragma once

#import <AppKit/NSColor.h>
#import <AppKit/NSControl.h>
#import <AppKit/NSImage.h>

@interface NSImageView : NSControl
@property (nullable, strong) NSImage *image;
@property (getter=isEditable) BOOL editable;
@property NSImageScaling imageScaling;
@property (nullable, copy) NSImageSymbolConfiguration *symbolConfiguration;
@property (nullable, copy) NSColor *contentTintColor;
@end
