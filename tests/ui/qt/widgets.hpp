#pragma once

#include <QWidget>
#include <vector>

namespace kelmar::test {

/// The widgets of exactly that kind inside `parent`, in the order in which they were made. (The
/// toolkit's own search knows only classes that carry its meta-object.)
template <class Widget>
std::vector<Widget*> widgets(const QWidget& parent) {
    std::vector<Widget*> found;
    for (QWidget* const each : parent.findChildren<QWidget*>()) {
        if (auto* const widget = dynamic_cast<Widget*>(each)) {
            found.push_back(widget);
        }
    }
    return found;
}

/// The first one that is seen and bears `text`; null without one.
template <class Widget>
Widget* seen(const QWidget& parent, const QString& text) {
    for (Widget* const widget : widgets<Widget>(parent)) {
        if (widget->isVisible() && widget->text() == text) {
            return widget;
        }
    }
    return nullptr;
}

} // namespace kelmar::test
