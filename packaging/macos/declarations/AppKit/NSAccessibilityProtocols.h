// Apple Developer Documentation: AppKit, NSAccessibility, NSAccessibilityRole
#pragma once

#import <AppKit/AppKitDefines.h>

typedef NSString *NSAccessibilityRole;

@protocol NSAccessibility <NSObject>
@property (getter=isAccessibilityElement) BOOL accessibilityElement;
@property (nullable, copy) NSString *accessibilityLabel;
@property (nullable, copy) NSString *accessibilityHelp;
@property (nullable, strong) id accessibilityValue;
@property (nullable, copy) NSAccessibilityRole accessibilityRole;
@property (getter=isAccessibilityExpanded) BOOL accessibilityExpanded;
@end
