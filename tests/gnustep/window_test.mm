#include "system/text/foundation_text_macos.hpp"
#include "tests/gnustep/harness/application_fixture.hpp"

#include <cmath>

namespace kelmar {
namespace {

class Window : public test::Application {};

TEST_F(Window, IsOneOfItsSizeThatKeepsIt) {
    launch();
    EXPECT_TRUE(NSEqualSizes([content() frame].size, NSMakeSize(600, 620)));
    const NSUInteger style = [window() styleMask];
    EXPECT_EQ(style, NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                         NSWindowStyleMaskMiniaturizable);
    EXPECT_EQ(style & NSWindowStyleMaskResizable, 0U);
    EXPECT_EQ(plainText([window() title]), "Kelmar Uninstaller");
    EXPECT_FALSE([window() isRestorable]);
    EXPECT_TRUE([window() isVisible]);
}

TEST_F(Window, StandsInTheMiddle) {
    launch();
    test::settle();
    const NSRect screen = [[NSScreen mainScreen] visibleFrame];
    const NSRect frame = [window() frame];
    EXPECT_LE(std::abs(NSMidX(frame) - NSMidX(screen)), 2);
    EXPECT_GE(NSMidY(frame), NSMidY(screen) - 2) << "in the middle, or a little above it";
    EXPECT_TRUE(NSContainsRect(screen, frame));
}

TEST_F(Window, HasNoTabs) {
    launch();
    EXPECT_FALSE([NSWindow allowsAutomaticWindowTabbing]);
}

TEST_F(Window, HasTheKeyboard) {
    launch();
    EXPECT_TRUE(test::eventually([this] { return [window() isKeyWindow] == YES; }));
}

TEST_F(Window, IsNotThereBeforeTheApplicationHasLaunched) {
    delegate = [[AppDelegate alloc] initWithPaths:test::pathsUnder(folder.path()) sources:{}];
    EXPECT_EQ(window(), nil);
    test::settle();
    EXPECT_EQ(window(), nil);
}

TEST_F(Window, ShowsThatItLooks) {
    launch();
    EXPECT_TRUE(shows("Looking for Kelmar on this Mac…"));
}

TEST_F(Window, SaysThatNothingIsHere) {
    launch();
    EXPECT_TRUE(waitFor("Kelmar isn't on this Mac"));
}

TEST_F(Window, BelongsToAnApplicationThatEndsWithIt) {
    launch();
    EXPECT_TRUE([delegate applicationShouldTerminateAfterLastWindowClosed:NSApp]);
    EXPECT_TRUE([delegate applicationSupportsSecureRestorableState:NSApp]);
    EXPECT_EQ([window() delegate], delegate);
}

} // namespace
} // namespace kelmar
