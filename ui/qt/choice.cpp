#include "ui/qt/choice.hpp"

#include "ui/qt/accessibility.hpp"

#include <utility>

namespace kelmar {

Choice::Choice(QWidget* parent) : QCheckBox(parent) {
    // With the toolkit's own role, a screen reader could change the state without a click.
    setAccessibleRole(*this, QAccessible::CheckBox);
}

void Choice::onRequest(std::function<void(bool on)> request) {
    request_ = std::move(request);
}

void Choice::nextCheckState() {
    request_(!isChecked());
}

bool Choice::hitButton(const QPoint& point) const {
    return rect().contains(point);
}

} // namespace kelmar
