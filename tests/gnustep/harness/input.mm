#include "tests/gnustep/harness/input.hpp"

#include "tests/gnustep/harness/run_loop.hpp"
#include "tests/gnustep/harness/test_environment.hpp"

#include <gtest/gtest.h>

namespace kelmar::test {

namespace {

NSEvent* mouseEvent(NSEventType type, NSView* view, NSPoint place, int count) {
    return [NSEvent mouseEventWithType:type location:[view convertPoint:place toView:nil]
                         modifierFlags:0
                             timestamp:0
                          windowNumber:[[view window] windowNumber]
                               context:nil
                           eventNumber:0
                            clickCount:count
                              pressure:1];
}

NSPoint middle(NSView* view) {
    const NSRect bounds = [view bounds];
    return NSMakePoint(NSMidX(bounds), NSMidY(bounds));
}

/// Both are in the queue before the first is handled: GNUstep waits for the second inside the
/// first.
void post(NSView* view, NSPoint place, int count) {
    [NSApp postEvent:mouseEvent(NSLeftMouseDown, view, place, count) atStart:NO];
    [NSApp postEvent:mouseEvent(NSLeftMouseUp, view, place, count) atStart:NO];
}

} // namespace

void click(NSView* view) {
    // A click on a window that is not the one in front would do no more than bring it there.
    NSWindow* const window = [view window];
    EXPECT_TRUE([window kelmarSheet] != nil ||
                eventually([window] { return [window isKeyWindow] == YES; }));
    post(view, middle(view), 1);
    settle();
}

void doubleClick(NSView* view) {
    post(view, middle(view), 1);
    post(view, middle(view), 2);
    settle();
}

void press(const std::string& key) {
    TestEnvironment::current().screen().press(key);
    settle();
}

void sendRepeatedKey(NSWindow* window, NSString* characters) {
    NSEvent* const event = [NSEvent keyEventWithType:NSKeyDown location:NSZeroPoint modifierFlags:0
                                           timestamp:0
                                        windowNumber:[window windowNumber]
                                             context:nil
                                          characters:characters
                         charactersIgnoringModifiers:characters
                                           isARepeat:YES
                                             keyCode:0];
    [NSApp sendEvent:event];
    settle();
}

} // namespace kelmar::test
