// Put before every Objective-C++ source of this build: what the Mac's headers declare and those of
// GNUstep do not, as far as the program uses it. What stands in for the Mac here proves nothing
// about the Mac; it lets everything around it run.
#pragma once

#import <AppKit/AppKit.h>

// Known to GNUstep, and not among what its Foundation.h names.
#import "tests/gnustep/stand_ins/accessibility.h"
#import "tests/gnustep/stand_ins/alert.h"
#import "tests/gnustep/stand_ins/announcements.h"
#import "tests/gnustep/stand_ins/buttons.h"
#import "tests/gnustep/stand_ins/colours.h"
#import "tests/gnustep/stand_ins/fonts.h"
#import "tests/gnustep/stand_ins/list_formatter.h"
#import "tests/gnustep/stand_ins/names.h"
#import "tests/gnustep/stand_ins/sheets.h"
#import "tests/gnustep/stand_ins/symbols.h"
#import "tests/gnustep/stand_ins/windows.h"

#import <Foundation/NSByteCountFormatter.h>
