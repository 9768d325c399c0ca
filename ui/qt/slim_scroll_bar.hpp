#pragma once

#include <QScrollBar>

namespace kelmar {

/// A narrow upright scroll bar without buttons and groove.
class SlimScrollBar : public QScrollBar {
public:
    static constexpr int thickness = 10;

    explicit SlimScrollBar(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override { return {thickness, thickness * 4}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kelmar
