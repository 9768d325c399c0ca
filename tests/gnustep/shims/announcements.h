#pragma once

#import <AppKit/AppKit.h>

/// Stands for what the Mac says aloud to people who can't see (macOS 10.9). Here it is written
/// down, for tests to read.
extern "C" void NSAccessibilityPostNotificationWithUserInfo(id element, NSString* notification,
                                                            NSDictionary* information);

/// What has been announced so far: the texts.
NSArray* KelmarAnnouncements();
