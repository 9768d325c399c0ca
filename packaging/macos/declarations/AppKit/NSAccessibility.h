// Apple Developer Documentation: AppKit, NSAccessibilityPostNotificationWithUserInfo, NSAccessibilityPriorityLevel
#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString *NSAccessibilityNotificationName;
typedef NSString *NSAccessibilityNotificationUserInfoKey;

typedef NS_ENUM(NSInteger, NSAccessibilityPriorityLevel) {
    NSAccessibilityPriorityMedium = 50,
};

APPKIT_EXTERN const NSAccessibilityNotificationName NSAccessibilityAnnouncementRequestedNotification;
APPKIT_EXTERN const NSAccessibilityNotificationUserInfoKey NSAccessibilityAnnouncementKey;
APPKIT_EXTERN const NSAccessibilityNotificationUserInfoKey NSAccessibilityPriorityKey;
APPKIT_EXTERN void NSAccessibilityPostNotificationWithUserInfo(id element, NSAccessibilityNotificationName notification, NSDictionary<NSAccessibilityNotificationUserInfoKey, id> *_Nullable userInfo);

NS_ASSUME_NONNULL_END
