#pragma once

#include "ui/qt/choice.hpp"

namespace kelmar {

/// A check box with its text.
class CheckBox : public Choice {
public:
    explicit CheckBox(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kelmar
