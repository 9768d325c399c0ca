#include "ui/appkit/spinner.h"

#include "ui/look.hpp"

namespace kelmar {

NSProgressIndicator* makeSpinner() {
    const NSRect frame = NSMakeRect(0, 0, Look::spinner, Look::spinner);
    NSProgressIndicator* const spinner =
        [[[NSProgressIndicator alloc] initWithFrame:frame] autorelease];
    [spinner setStyle:NSProgressIndicatorStyleSpinning];
    [spinner setControlSize:NSControlSizeSmall];
    [spinner setIndeterminate:YES];
    [spinner setHidden:YES];
    return spinner;
}

void setSpinning(NSProgressIndicator* spinner, bool spinning) {
    if (![spinner isHidden] == spinning) {
        return;
    }
    [spinner setHidden:spinning ? NO : YES];
    if (spinning) {
        [spinner startAnimation:nil];
    } else {
        [spinner stopAnimation:nil];
    }
}

} // namespace kelmar
