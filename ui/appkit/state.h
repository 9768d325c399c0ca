#pragma once

#import <AppKit/AppKit.h>

namespace kelmar {

/// Has a check box, a triangle or a switch show that it is on, or not. Changes nothing, and draws
/// nothing, where it does.
template <typename Control>
void setState(Control* control, BOOL on) {
    const NSControlStateValue state = on == YES ? NSControlStateValueOn : NSControlStateValueOff;
    if ([control state] != state) {
        [control setState:state];
    }
}

} // namespace kelmar
