#pragma once

#include "ui/qt/choice.hpp"

namespace kelmar {

/// A check box that looks like a switch; the label beside it is its name.
class ToggleSwitch : public Choice {
public:
    explicit ToggleSwitch(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kelmar
