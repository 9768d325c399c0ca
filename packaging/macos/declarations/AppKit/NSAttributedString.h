// Apple Developer Documentation: AppKit, NSAttributedString.Key
#pragma once

#import <AppKit/AppKitDefines.h>

APPKIT_EXTERN const NSAttributedStringKey NSFontAttributeName;
APPKIT_EXTERN const NSAttributedStringKey NSForegroundColorAttributeName;
