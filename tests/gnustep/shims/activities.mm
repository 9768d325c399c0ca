#import "tests/gnustep/shims/activities.h"

#include <atomic>

namespace {

// Begun and ended on whichever thread.
std::atomic<int> begun;
std::atomic<int> ended;
std::atomic<int> otherKind;

} // namespace

#pragma clang diagnostic push
// The class's own methods are to be replaced: they tell nobody.
#pragma clang diagnostic ignored "-Wobjc-protocol-method-implementation"

@implementation NSProcessInfo (KelmarActivities)

- (id)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason {
    ++(options == NSActivityUserInitiated && [reason length] > 0 ? begun : otherKind);
    return [[NSObject new] autorelease];
}

- (void)endActivity:(id<NSObject>)activity {
    ended += activity != nil ? 1 : 0;
}

@end

#pragma clang diagnostic pop

KelmarActivityCounts KelmarActivities() {
    return {begun, begun + otherKind - ended, otherKind};
}
