// Apple Developer Documentation: AppKit, NSRectFillUsingOperation, NSCompositingOperation
#pragma once

#import <AppKit/AppKitDefines.h>

typedef NS_ENUM(NSUInteger, NSCompositingOperation) {
    NSCompositingOperationSourceOver = 2,
};

APPKIT_EXTERN void NSRectFillUsingOperation(NSRect rect, NSCompositingOperation operation);
