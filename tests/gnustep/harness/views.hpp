#pragma once

#include <functional>
#include <string>
#include <vector>

#import <AppKit/AppKit.h>

namespace kelmar::test {

/// All views in `root` that are to be seen, `root` itself first, each before what is inside it.
std::vector<NSView*> seenViews(NSView* root);

/// What a view shows as text, as it is read aloud: what only guides the lines is not in it. Empty
/// for one that shows none, or only by views inside it.
std::string textOf(NSView* view);

/// What a screen reader is given for the view: for a control that is drawn by one cell, that cell.
/// The Mac's switch has none.
id exposed(NSView* view);

/// The texts that are to be seen in `root`, in the order of the views: the one in which a screen
/// reader goes through them.
std::vector<std::string> textsInOrderOfViews(NSView* root);

/// The texts that are to be seen in `root`, in the order in which they are read: from top to
/// bottom, and in a line from left to right.
std::vector<std::string> textsIn(NSView* root);

/// The first view of that class that shows that text; nil without one.
NSView* viewWithText(NSView* root, const std::string& text, Class kind);

template <typename View>
View* seen(NSView* root, const std::string& text) {
    return static_cast<View*>(viewWithText(root, text, [View class]));
}

/// All seen views of that class.
template <typename View>
std::vector<View*> allSeen(NSView* root) {
    std::vector<View*> found;
    for (NSView* const view : seenViews(root)) {
        if ([view isKindOfClass:[View class]]) {
            found.push_back(static_cast<View*>(view));
        }
    }
    return found;
}

template <typename View>
View* firstSeen(NSView* root) {
    const std::vector<View*> all = allSeen<View>(root);
    return all.empty() ? nil : all.front();
}

/// The names of the symbols that are to be seen, in reading order.
std::vector<std::string> symbolsIn(NSView* root);

/// The frame in the window's content, measured from its top left corner.
NSRect placeInWindow(NSView* view);

/// The same for a rectangle in the coordinates of the view's superview.
NSRect placeInWindow(NSView* view, NSRect beside);

} // namespace kelmar::test
