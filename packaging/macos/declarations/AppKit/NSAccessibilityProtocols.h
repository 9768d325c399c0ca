// Apple Developer Documentation: AppKit, NSAccessibility
#pragma once

#import <AppKit/AppKitDefines.h>

@protocol NSAccessibility <NSObject>
@property (getter=isAccessibilityElement) BOOL accessibilityElement;
@property (nullable, copy) NSString *accessibilityLabel;
@property (nullable, copy) NSString *accessibilityHelp;
@end
