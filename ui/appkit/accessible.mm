#include "ui/appkit/accessible.h"

#include "system/text/foundation_text_macos.hpp"
#include "system/text/harmless_text.hpp"

namespace kelmar {

namespace {

/// The view, and the cell that is exposed in its place.
NSArray* exposed(NSView* view) {
    NSCell* const cell =
        [view isKindOfClass:[NSControl class]] ? [static_cast<NSControl*>(view) cell] : nil;
    return [NSArray arrayWithObjects:view, cell, nil];
}

NSString* spoken(const std::string& text) {
    return foundationText(harmlessText(text));
}

} // namespace

void setAccessible(NSView* view, bool accessible) {
    for (id each in exposed(view)) {
        [each setAccessibilityElement:accessible ? YES : NO];
    }
}

void setAccessibleName(NSView* view, const std::string& name) {
    for (id each in exposed(view)) {
        [each setAccessibilityLabel:spoken(name)];
    }
}

void setAccessibleValue(NSView* view, const std::string& value) {
    for (id each in exposed(view)) {
        [each setAccessibilityValue:spoken(value)];
    }
}

void setAccessibleHelp(NSView* view, const std::string& help) {
    for (id each in exposed(view)) {
        [each setAccessibilityHelp:spoken(help)];
    }
}

void setHeading(NSView* view) {
    for (id each in exposed(view)) {
        [each setAccessibilityRole:@"AXHeading"]; // the constant for it is newer than macOS 12
    }
}

void setUnfolded(NSView* view, bool unfolded) {
    for (id each in exposed(view)) {
        [each setAccessibilityExpanded:unfolded ? YES : NO];
    }
}

void announce(const std::string& text) {
    NSDictionary* const announcement = [NSDictionary
        dictionaryWithObjectsAndKeys:spoken(text), NSAccessibilityAnnouncementKey,
                                     [NSNumber numberWithInteger:NSAccessibilityPriorityMedium],
                                     NSAccessibilityPriorityKey, nil];
    NSAccessibilityPostNotificationWithUserInfo(
        NSApp, NSAccessibilityAnnouncementRequestedNotification, announcement);
}

} // namespace kelmar
