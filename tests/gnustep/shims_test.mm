#include "tests/gnustep/harness/page_fixture.hpp"

namespace kelmar {
namespace {

/// What the other tests take for granted of what stands in for the Mac.
class Shims : public test::PageInAWindow {};

TEST_F(Shims, AHiddenViewLosesTheKeyboardsFocus) {
    NSView* const outer = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
    NSButton* const inner = [[[NSButton alloc] initWithFrame:NSMakeRect(0, 0, 50, 50)] autorelease];
    [outer addSubview:inner];
    [page addSubview:outer];
    ASSERT_TRUE([window makeFirstResponder:inner]);
    ASSERT_EQ([window firstResponder], inner);
    [outer setHidden:YES];
    EXPECT_NE([window firstResponder], inner);
}

TEST_F(Shims, WhatIsKeptAboutAViewGoesWithIt) {
    NSView* view = [[NSView alloc] initWithFrame:NSZeroRect];
    [view setAccessibilityLabel:@"a name"];
    EXPECT_TRUE([[view accessibilityLabel] isEqualToString:@"a name"]);
    [view release];
    for (int times = 0; times < 100; ++times) {
        NSView* const other = [[NSView alloc] initWithFrame:NSZeroRect];
        EXPECT_EQ([other accessibilityLabel], nil)
            << "at the same place in memory, and another view";
        [other release];
    }
}

} // namespace
} // namespace kelmar
