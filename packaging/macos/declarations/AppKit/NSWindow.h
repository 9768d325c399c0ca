// Apple Developer Documentation: AppKit, NSWindow, NSWindowDelegate, NSWindowStyleMask, NSBackingStoreType
#pragma once

#import <AppKit/NSApplication.h>
#import <AppKit/NSView.h>

@protocol NSWindowDelegate;

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskTitled = 1 << 0,
    NSWindowStyleMaskClosable = 1 << 1,
    NSWindowStyleMaskMiniaturizable = 1 << 2,
};

typedef NS_ENUM(NSUInteger, NSBackingStoreType) {
    NSBackingStoreBuffered = 2,
};

@interface NSWindow : NSResponder
@property (class) BOOL allowsAutomaticWindowTabbing;
- (instancetype)initWithContentRect:(NSRect)content styleMask:(NSWindowStyleMask)style backing:(NSBackingStoreType)backing defer:(BOOL)later NS_DESIGNATED_INITIALIZER;
@property (copy) NSString *title;
@property (nullable, strong) __kindof NSView *contentView;
@property (nullable, weak) id<NSWindowDelegate> delegate;
@property (getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property (getter=isRestorable) BOOL restorable;
@property BOOL autorecalculatesKeyViewLoop;
@property BOOL preventsApplicationTerminationWhenModal;
- (void)setContentSize:(NSSize)size;
- (void)center;
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)orderOut:(nullable id)sender;
- (void)performMiniaturize:(nullable id)sender;
- (void)endSheet:(NSWindow *)sheet returnCode:(NSModalResponse)code;
@end

@protocol NSWindowDelegate <NSObject>
@optional
- (nullable id)windowWillReturnFieldEditor:(NSWindow *)sender toObject:(nullable id)client;
- (BOOL)windowShouldClose:(NSWindow *)window;
@end

NS_ASSUME_NONNULL_END
