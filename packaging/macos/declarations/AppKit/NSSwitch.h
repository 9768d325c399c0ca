// Apple Developer Documentation: AppKit, NSSwitch
#pragma once

#import <AppKit/NSControl.h>

@interface NSSwitch : NSControl
@property NSControlStateValue state;
@end
