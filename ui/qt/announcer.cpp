#include "ui/qt/announcer.hpp"

#include "ui/qt/accessibility.hpp"

namespace kelmar {

Announcer::Announcer(QWidget& parent) : notifications_() {
    for (QWidget*& each : notifications_) {
        each = new QWidget(&parent);
        each->setGeometry(0, 0, 1, 1);
        each->hide();
        setAccessibleRole(*each, QAccessible::Notification);
    }
}

void Announcer::announce(const std::string& text) {
    notifications_.at(last_)->hide();
    last_ = (last_ + 1) % notifications_.size();
    notifications_.at(last_)->setAccessibleName(QString::fromStdString(text));
    // The toolkit notifies screen readers of what appears.
    notifications_.at(last_)->show();
}

} // namespace kelmar
