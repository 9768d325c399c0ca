// Apple Developer Documentation: AppKit, NSParagraphStyle, NSLineBreakMode
#pragma once

#import <AppKit/AppKitDefines.h>

typedef NS_ENUM(NSUInteger, NSLineBreakMode) {
    NSLineBreakByWordWrapping = 0,
    NSLineBreakByTruncatingMiddle = 5,
};
