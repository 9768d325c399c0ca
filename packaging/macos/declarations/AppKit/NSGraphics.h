// Apple Developer Documentation: AppKit, NSRectFillUsingOperation, NSCompositingOperation, NSWindowOrderingMode
#pragma once

#import <AppKit/AppKitDefines.h>

typedef NS_ENUM(NSUInteger, NSCompositingOperation) {
    NSCompositingOperationSourceOver = 2,
};

typedef NS_ENUM(NSInteger, NSWindowOrderingMode) {
    NSWindowAbove = 1,
    NSWindowBelow = -1,
};

APPKIT_EXTERN void NSRectFillUsingOperation(NSRect rect, NSCompositingOperation operation);
