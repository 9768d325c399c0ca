#include "tests/gnustep/harness/screenshot.hpp"

#include "system/text/foundation_text_macos.hpp"

#include <filesystem>

namespace kelmar::test {

NSBitmapImageRep* drawn(NSView* view) {
    [view display];
    [view lockFocus];
    NSBitmapImageRep* const bitmap =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
    [view unlockFocus];
    return bitmap;
}

void saveScreenshot(NSView* view, const std::string& name) {
    std::filesystem::create_directories(KELMAR_SCREENSHOTS);
    NSBitmapImageRep* const bitmap = drawn(view);
    NSData* const bytes = [bitmap representationUsingType:NSPNGFileType properties:nil];
    [bytes writeToFile:foundationText(std::string(KELMAR_SCREENSHOTS) + "/" + name + ".png")
            atomically:NO];
}

} // namespace kelmar::test
