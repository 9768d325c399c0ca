#include "tests/gnustep/harness/pictures.hpp"

#include "system/text/foundation_text_macos.hpp"

#include <filesystem>

namespace kelmar::test {

void takePicture(NSView* view, const std::string& name) {
    std::filesystem::create_directories(KELMAR_PICTURES);
    [view display];
    [view lockFocus];
    NSBitmapImageRep* const picture =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
    [view unlockFocus];
    NSData* const bytes = [picture representationUsingType:NSPNGFileType properties:nil];
    [bytes writeToFile:foundationText(std::string(KELMAR_PICTURES) + "/" + name + ".png")
            atomically:NO];
}

} // namespace kelmar::test
