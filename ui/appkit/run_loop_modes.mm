#include "ui/appkit/run_loop_modes.h"

namespace kelmar {

NSArray* everyRunLoopMode() {
    return [NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                     NSEventTrackingRunLoopMode, nil];
}

} // namespace kelmar
