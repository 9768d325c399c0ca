#include "tests/gnustep/harness/page_fixture.hpp"

namespace kelmar::test {

PageInAWindow::PageInAWindow() {
    const NSRect frame = NSMakeRect(100, 100, 600, 620);
    window = [[NSWindow alloc] initWithContentRect:frame styleMask:NSWindowStyleMaskTitled
                                           backing:NSBackingStoreBuffered
                                             defer:NO];
    [window setReleasedWhenClosed:NO];
    page = [KelmarPageView viewWithActions:&actions frame:NSMakeRect(0, 0, 600, 620)];
    [window setContentView:page];
    [window setAutorecalculatesKeyViewLoop:YES];
    [NSApp activateIgnoringOtherApps:YES];
    [window makeKeyAndOrderFront:nil];
    settle();
}

PageInAWindow::~PageInAWindow() {
    [window close];
    [window release];
    [pool_ drain];
}

void PageInAWindow::render(const Page& shown) {
    [page render:shown];
    settle();
}

} // namespace kelmar::test
