#include "system/process/background_process.hpp"
#include "tests/gnustep/shims/bundle.h"

#include <gtest/gtest.h>

#import <Foundation/Foundation.h>

namespace kelmar {
namespace {

/// What the Mac does with it is not shown here: the frameworks read this dictionary when they
/// introduce the process to the system.
TEST(BackgroundProcess, SaysInTheProgramsInformationThatItHasNoIcon) {
    @autoreleasepool {
        KelmarInstallBundle();
        becomeBackgroundProcess();
        id const said = [[[NSBundle mainBundle] infoDictionary] objectForKey:@"LSUIElement"];
        EXPECT_TRUE([said boolValue]);
    }
}

TEST(BackgroundProcess, LeavesAnInformationThatCannotBeChanged) {
    @autoreleasepool {
        // GNUstep's own can't be.
        becomeBackgroundProcess();
        EXPECT_EQ([[[NSBundle mainBundle] infoDictionary] objectForKey:@"LSUIElement"], nil);
    }
}

} // namespace
} // namespace kelmar
