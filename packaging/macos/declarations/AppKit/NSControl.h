// Apple Developer Documentation: AppKit, NSControl
#pragma once

#import <AppKit/NSCell.h>
#import <AppKit/NSText.h>
#import <AppKit/NSView.h>

@class NSFont;

NS_ASSUME_NONNULL_BEGIN

@interface NSControl : NSView
@property (nullable, weak) id target;
@property (nullable) SEL action;
@property (getter=isEnabled) BOOL enabled;
@property NSControlSize controlSize;
@property (copy) NSString *stringValue;
@property (nullable, strong) NSFont *font;
@property (nullable, strong) __kindof NSCell *cell;
@property NSTextAlignment alignment;
@property BOOL refusesFirstResponder;
- (void)sizeToFit;
- (void)performClick:(nullable id)sender;
@end

NS_ASSUME_NONNULL_END
