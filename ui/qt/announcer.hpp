#pragma once

#include <QWidget>
#include <array>
#include <string>

namespace kelmar {

/// Makes screen readers announce texts. Shows nothing.
class Announcer {
public:
    explicit Announcer(QWidget& parent);

    /// Announces `text` now, or when the window appears, whatever has the focus.
    void announce(const std::string& text);

private:
    /// A screen reader asks for a notification's name some time after it appeared. Each keeps its
    /// own, hidden, until a few more have followed.
    std::array<QWidget*, 4> notifications_;
    std::size_t last_ = 0;
};

} // namespace kelmar
