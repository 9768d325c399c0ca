#pragma once

#include "ui/look.hpp"

#include <QScrollBar>

namespace kelmar {

/// A narrow vertical scroll bar without buttons and groove.
class SlimScrollBar : public QScrollBar {
public:
    explicit SlimScrollBar(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override { return {Look::scrollBar, Look::scrollBar * 4}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kelmar
