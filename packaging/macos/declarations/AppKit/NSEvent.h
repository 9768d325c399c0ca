// Apple Developer Documentation: AppKit, NSEvent, NSEventType, NSEventModifierFlags
#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSEventType) {
    NSEventTypeKeyDown = 10,
};

typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) {
    NSEventModifierFlagOption = 1 << 19,
    NSEventModifierFlagCommand = 1 << 20,
};

@interface NSEvent : NSObject
@property (readonly) NSEventType type;
@property (readonly, getter=isARepeat) BOOL ARepeat;
@property (nullable, readonly, copy) NSString *charactersIgnoringModifiers;
@end

NS_ASSUME_NONNULL_END
