#import "tests/gnustep/stand_ins/install.h"

#import "tests/gnustep/stand_ins/accessibility.h"
#import "tests/gnustep/stand_ins/controls.h"
#import "tests/gnustep/stand_ins/dispatch/main_queue.h"
#import "tests/gnustep/stand_ins/scroll_views.h"
#import "tests/gnustep/stand_ins/sheets.h"
#import "tests/gnustep/stand_ins/side_values.h"

void KelmarInstallStandIns() {
    KelmarInstallMainQueue();
    KelmarInstallAccessibility();
    KelmarInstallControls();
    KelmarInstallSideValues();
    KelmarInstallScrollViews();
    KelmarInstallSheets();
}
