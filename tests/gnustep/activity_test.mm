#include "system/process/activity.hpp"
#include "tests/gnustep/shims/activities.h"

#include <gtest/gtest.h>

namespace kelmar {
namespace {

TEST(Activity, LastsAsLongAsItsResult) {
    std::shared_ptr<void> activity = beginActivity("Testing");
    EXPECT_EQ(KelmarActivities().begun, 1);
    EXPECT_EQ(KelmarActivities().underWay, 1);
    activity.reset();
    EXPECT_EQ(KelmarActivities().underWay, 0);
    EXPECT_EQ(KelmarActivities().otherKind, 0);
}

} // namespace
} // namespace kelmar
