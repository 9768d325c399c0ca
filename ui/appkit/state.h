#pragma once

#import <AppKit/AppKit.h>

namespace kelmar {

/// Has a check box, a triangle or a switch show that it is on, or not. Changes nothing, and draws
/// nothing, where it does.
template <typename Control>
void setState(Control* control, BOOL on) {
    // On GNUstep some controls' states are signed, and others' are not.
    using State = decltype([control state]);
    const auto state =
        static_cast<State>(on == YES ? NSControlStateValueOn : NSControlStateValueOff);
    if ([control state] != state) {
        [control setState:state];
    }
}

} // namespace kelmar
