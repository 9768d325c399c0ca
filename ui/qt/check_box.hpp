#pragma once

#include <QCheckBox>

namespace kelmar {

/// A check box with its text.
class CheckBox : public QCheckBox {
public:
    explicit CheckBox(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& point) const override;
};

} // namespace kelmar
