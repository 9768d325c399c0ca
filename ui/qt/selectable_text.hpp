#pragma once

#include "ui/qt/text_label.hpp"

namespace kelmar {

/// A text that can be selected with the mouse, as a whole with a double click, and copied.
class SelectableText : public TextLabel {
public:
    SelectableText(TextStyle style, TextTone tone, QWidget* parent = nullptr);

    /// The selection, in the original text.
    [[nodiscard]] QString selected() const;

    void selectAll();

    /// Copies the selection to the clipboard.
    void copy() const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    [[nodiscard]] QList<QTextLayout::FormatRange> selections() const override;

private:
    void select(int anchor, int position);

    // Positions in the drawn text.
    int anchor_ = 0;
    int position_ = 0;
};

} // namespace kelmar
