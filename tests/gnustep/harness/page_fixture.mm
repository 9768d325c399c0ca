#include "tests/gnustep/harness/page_fixture.hpp"

namespace kelmar::test {

PageInAWindow::PageInAWindow()
    : actions{[this](Action action) { asked.push_back(asking(action)); },
              [this](bool all) { asked.emplace_back(all ? "delete all" : "delete none"); },
              [this](const std::string& path, bool selected) {
                  asked.push_back((selected ? "select " : "leave ") + path);
              }} {
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

std::string asking(Action action) {
    return "action " + std::to_string(static_cast<int>(action));
}

} // namespace kelmar::test
