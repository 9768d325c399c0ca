#include "tests/gnustep/harness/views.hpp"

#include "system/text/foundation_text_macos.hpp"

#include <algorithm>

namespace kelmar::test {

namespace {

CGFloat verticalMiddle(NSView* view) {
    return NSMidY(placeInWindow(view));
}

/// Sorts by lines: what stands at the same height, give or take a few points, is one.
void sortForReading(std::vector<NSView*>& views) {
    constexpr CGFloat tolerance = 5;
    std::stable_sort(views.begin(), views.end(), [](NSView* one, NSView* other) {
        return verticalMiddle(one) < verticalMiddle(other);
    });
    for (auto begin = views.begin(); begin != views.end();) {
        const CGFloat line = verticalMiddle(*begin);
        const auto end = std::find_if(begin, views.end(), [line](NSView* each) {
            return verticalMiddle(each) > line + tolerance;
        });
        std::stable_sort(begin, end, [](NSView* one, NSView* other) {
            return NSMinX(placeInWindow(one)) < NSMinX(placeInWindow(other));
        });
        begin = end;
    }
}

void collect(NSView* view, std::vector<NSView*>& found) {
    if ([view isHidden]) {
        return;
    }
    found.push_back(view);
    for (NSView* each in [view subviews]) {
        collect(each, found);
    }
}

} // namespace

std::vector<NSView*> seenViews(NSView* root) {
    std::vector<NSView*> found;
    collect(root, found);
    return found;
}

std::string textOf(NSView* view) {
    if ([view isKindOfClass:[NSTextField class]]) {
        NSString* const drawn = [static_cast<NSTextField*>(view) stringValue];
        NSString* const spoken = [exposed(view) accessibilityValue];
        return plainText(spoken != nil ? spoken : drawn);
    }
    if ([view isKindOfClass:[NSButton class]]) {
        NSString* const drawn = [static_cast<NSButton*>(view) title];
        NSString* const spoken = [exposed(view) accessibilityLabel];
        return plainText([drawn length] > 0 && spoken != nil ? spoken : drawn);
    }
    if ([view isKindOfClass:[NSText class]]) {
        return plainText([static_cast<NSText*>(view) string]);
    }
    return "";
}

id exposed(NSView* view) {
    const bool hasCell =
        [view isKindOfClass:[NSControl class]] && ![view isKindOfClass:[NSSwitch class]];
    NSCell* const cell = hasCell ? [static_cast<NSControl*>(view) cell] : nil;
    return cell != nil ? static_cast<id>(cell) : static_cast<id>(view);
}

std::vector<std::string> textsInOrderOfViews(NSView* root) {
    std::vector<std::string> texts;
    for (NSView* const view : seenViews(root)) {
        if (!textOf(view).empty()) {
            texts.push_back(textOf(view));
        }
    }
    return texts;
}

std::vector<std::string> textsIn(NSView* root) {
    std::vector<NSView*> views = seenViews(root);
    std::erase_if(views, [](NSView* each) { return textOf(each).empty(); });
    sortForReading(views);
    std::vector<std::string> texts;
    std::transform(views.begin(), views.end(), std::back_inserter(texts), textOf);
    return texts;
}

NSView* viewWithText(NSView* root, const std::string& text, Class kind) {
    const std::vector<NSView*> views = seenViews(root);
    const auto found = std::find_if(views.begin(), views.end(), [&](NSView* each) {
        return [each isKindOfClass:kind] && textOf(each) == text;
    });
    return found == views.end() ? nil : *found;
}

std::vector<std::string> symbolsIn(NSView* root) {
    std::vector<NSView*> views;
    for (NSImageView* const view : allSeen<NSImageView>(root)) {
        if ([[view image] isKindOfClass:[KelmarSymbolImage class]]) {
            views.push_back(view);
        }
    }
    sortForReading(views);
    std::vector<std::string> names;
    for (NSView* const view : views) {
        NSImage* const image = [static_cast<NSImageView*>(view) image];
        names.push_back(plainText([static_cast<KelmarSymbolImage*>(image) symbolName]));
    }
    return names;
}

NSRect placeInWindow(NSView* view) {
    return placeInWindow(view, [view frame]);
}

NSRect placeInWindow(NSView* view, NSRect beside) {
    NSView* const content = [[view window] contentView];
    NSRect place = [[view superview] convertRect:beside toView:content];
    if (![content isFlipped]) {
        place.origin.y = NSHeight([content bounds]) - NSMaxY(place);
    }
    return place;
}

} // namespace kelmar::test
