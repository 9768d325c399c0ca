// Apple Developer Documentation: AppKit, NSApplication, NSApplicationDelegate,
// NSModalResponse, NSApplicationActivationPolicy, NSApplicationTerminateReply
#pragma once

#import <AppKit/NSImage.h>
#import <AppKit/NSMenu.h>
#import <AppKit/NSResponder.h>

@protocol NSApplicationDelegate;
@class NSApplication;

NS_ASSUME_NONNULL_BEGIN

typedef NSInteger NSModalResponse;

static const NSModalResponse NSModalResponseAbort = -1001;

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular = 0,
};

typedef NS_ENUM(NSUInteger, NSApplicationTerminateReply) {
    NSTerminateCancel = 0,
    NSTerminateNow = 1,
};

APPKIT_EXTERN const NSRunLoopMode NSModalPanelRunLoopMode;
APPKIT_EXTERN const NSRunLoopMode NSEventTrackingRunLoopMode;
APPKIT_EXTERN __kindof NSApplication *_Null_unspecified NSApp;

@interface NSApplication : NSResponder
@property (class, readonly, strong) __kindof NSApplication *sharedApplication;
@property (nullable, weak) id<NSApplicationDelegate> delegate;
@property (null_resettable, strong) NSImage *applicationIconImage;
@property (nullable, strong) NSMenu *mainMenu;
@property (nullable, strong) NSMenu *windowsMenu;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activateIgnoringOtherApps:(BOOL)ignoring;
- (void)run;
- (void)hide:(nullable id)sender;
- (void)hideOtherApplications:(nullable id)sender;
- (void)unhideAllApplications:(nullable id)sender;
- (void)orderFrontStandardAboutPanel:(nullable id)sender;
- (void)terminate:(nullable id)sender;
@end

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification *)notification;
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication *)application;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication *)application;
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication *)application;
@end

NS_ASSUME_NONNULL_END
