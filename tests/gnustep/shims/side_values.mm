#import "tests/gnustep/shims/side_values.h"

#import "tests/gnustep/shims/install.h"

#include <unordered_map>

namespace {

using Values = std::unordered_map<const void*, NSMutableDictionary*>;

Values& all() {
    static auto* const values = new Values;
    return *values;
}

using Dealloc = void (*)(id, SEL);

Dealloc responderDealloc = nullptr;
Dealloc cellDealloc = nullptr;

void forget(id self) {
    if (const auto place = all().find(self); place != all().end()) {
        [place->second release];
        all().erase(place);
    }
}

void forgetResponder(id self, SEL command) {
    forget(self);
    responderDealloc(self, command);
}

void forgetCell(id self, SEL command) {
    forget(self);
    cellDealloc(self, command);
}

} // namespace

@implementation NSObject (KelmarSideValues)

- (void)keep:(id)value under:(NSString*)name {
    NSMutableDictionary*& values = all()[self];
    if (values == nil) {
        values = [NSMutableDictionary new];
    }
    if (value == nil) {
        [values removeObjectForKey:name];
    } else {
        [values setObject:value forKey:name];
    }
}

- (id)keptUnder:(NSString*)name {
    const auto place = all().find(self);
    return place == all().end() ? nil : [place->second objectForKey:name];
}

@end

void KelmarInstallSideValues() {
    responderDealloc = KelmarReplace([NSResponder class], @selector(dealloc), forgetResponder);
    cellDealloc = KelmarReplace([NSCell class], @selector(dealloc), forgetCell);
}
