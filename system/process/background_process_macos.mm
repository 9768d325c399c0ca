#include "system/process/background_process.hpp"

#import <Foundation/Foundation.h>

namespace kelmar {

// The executable is the application's, and so is the Info.plist that it would be introduced by.
// This changes the copy in memory, which is what the frameworks hand over. An activation policy
// that is set later comes after the icon.
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
