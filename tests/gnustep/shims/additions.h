// Put before every Objective-C++ source of this build: what the Mac's headers declare and those of
// GNUstep do not, as far as the program uses it. What stands in for the Mac here proves nothing
// about the Mac; it lets everything around it run.
#pragma once

#import <AppKit/AppKit.h>

// Known to GNUstep, and not among what its Foundation.h names.
#import "tests/gnustep/shims/accessibility.h"
#import "tests/gnustep/shims/alert.h"
#import "tests/gnustep/shims/alignment.h"
#import "tests/gnustep/shims/announcements.h"
#import "tests/gnustep/shims/buttons.h"
#import "tests/gnustep/shims/colours.h"
#import "tests/gnustep/shims/fonts.h"
#import "tests/gnustep/shims/list_formatter.h"
#import "tests/gnustep/shims/names.h"
#import "tests/gnustep/shims/sheets.h"
#import "tests/gnustep/shims/symbols.h"
#import "tests/gnustep/shims/windows.h"

#import <Foundation/NSByteCountFormatter.h>
