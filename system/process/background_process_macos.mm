#include "system/process/background_process.hpp"

#import <Foundation/Foundation.h>

namespace kelmar {

// The executable is the application's, so the frameworks would register this process with the
// application's Info.plist. This changes the copy in memory, which is what they read. An activation
// policy set later would take effect only after the icon has appeared.
void becomeBackgroundProcess() {
    @autoreleasepool {
        NSDictionary* const information = [[NSBundle mainBundle] infoDictionary];
        if ([information isKindOfClass:[NSMutableDictionary class]] == YES) {
            [static_cast<NSMutableDictionary*>(information) setObject:[NSNumber numberWithInteger:1]
                                                               forKey:@"LSUIElement"];
        }
    }
}

} // namespace kelmar
