#import "tests/gnustep/shims/bundle.h"

#import "tests/gnustep/shims/install.h"

#import <Foundation/Foundation.h>

namespace {

using Information = NSDictionary* (*)(id, SEL);

Information gnustepInformation = nullptr;
NSMutableDictionary* information = nil;

NSDictionary* changeableInformation(id self, SEL command) {
    if (self != [NSBundle mainBundle]) {
        return gnustepInformation(self, command);
    }
    if (information == nil) {
        information = [gnustepInformation(self, command) mutableCopy];
    }
    return information;
}

} // namespace

void KelmarInstallBundle() {
    gnustepInformation =
        KelmarReplace([NSBundle class], @selector(infoDictionary), changeableInformation);
}
