// Apple Developer Documentation: AppKit, NSMenu, NSMenuItem
#pragma once

#import <AppKit/NSEvent.h>

@class NSMenu;

NS_ASSUME_NONNULL_BEGIN

@interface NSMenuItem : NSObject
+ (NSMenuItem *)separatorItem;
- (instancetype)initWithTitle:(NSString *)title action:(nullable SEL)action keyEquivalent:(NSString *)key NS_DESIGNATED_INITIALIZER;
@property NSEventModifierFlags keyEquivalentModifierMask;
@property (nullable, strong) NSMenu *submenu;
@end

@interface NSMenu : NSObject
- (instancetype)initWithTitle:(NSString *)title NS_DESIGNATED_INITIALIZER;
- (void)addItem:(NSMenuItem *)item;
@end

NS_ASSUME_NONNULL_END
