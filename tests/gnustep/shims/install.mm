#import "tests/gnustep/shims/install.h"

#import "tests/gnustep/shims/accessibility.h"
#import "tests/gnustep/shims/controls.h"
#import "tests/gnustep/shims/dispatch/main_queue.h"
#import "tests/gnustep/shims/scroll_views.h"
#import "tests/gnustep/shims/sheets.h"
#import "tests/gnustep/shims/side_values.h"

void KelmarInstallShims() {
    KelmarInstallMainQueue();
    KelmarInstallAccessibility();
    KelmarInstallControls();
    KelmarInstallSideValues();
    KelmarInstallScrollViews();
    KelmarInstallSheets();
}
