// Apple Developer Documentation: AppKit, NSButton, NSButtonType, NSBezelStyle
#pragma once

#import <AppKit/NSControl.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSButtonType) {
    NSButtonTypePushOnPushOff = 1,
    NSButtonTypeSwitch = 3,
    NSButtonTypeMomentaryChange = 5,
    NSButtonTypeMomentaryPushIn = 7,
};

typedef NS_ENUM(NSUInteger, NSBezelStyle) {
    NSBezelStyleRounded = 1,
    NSBezelStyleDisclosure = 5,
};

@interface NSButton : NSControl
- (void)setButtonType:(NSButtonType)type;
@property (copy) NSString *title;
@property NSBezelStyle bezelStyle;
@property (copy) NSString *keyEquivalent;
@property (getter=isBordered) BOOL bordered;
@property NSControlStateValue state;
@property BOOL hasDestructiveAction;
@end

NS_ASSUME_NONNULL_END
