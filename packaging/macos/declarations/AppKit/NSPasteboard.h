// Apple Developer Documentation: AppKit, NSPasteboard, NSPasteboardType
#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString *NSPasteboardType;

APPKIT_EXTERN NSPasteboardType const NSPasteboardTypeString;

@interface NSPasteboard : NSObject
- (BOOL)setString:(NSString *)string forType:(NSPasteboardType)type;
@end

NS_ASSUME_NONNULL_END
