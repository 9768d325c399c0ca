#import "tests/gnustep/shims/announcements.h"

namespace {

NSMutableArray* announced() {
    static NSMutableArray* const texts = [NSMutableArray new];
    return texts;
}

} // namespace

extern "C" void NSAccessibilityPostNotificationWithUserInfo(id /*element*/, NSString* notification,
                                                            NSDictionary* information) {
    NSString* const text = [information objectForKey:NSAccessibilityAnnouncementKey];
    if ([notification isEqualToString:NSAccessibilityAnnouncementRequestedNotification]) {
        [announced() addObject:text];
    }
}

NSArray* KelmarAnnouncements() {
    return announced();
}
