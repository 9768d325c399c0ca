#pragma once

#include "ui/qt/text_label.hpp"

namespace kelmar {

/// A text to select with the mouse, all of it with a double click, and to copy.
class SelectableText : public TextLabel {
public:
    SelectableText(TextStyle style, TextTone tone, QWidget* parent = nullptr);

    /// What is selected, as the text has it.
    [[nodiscard]] QString selected() const;

    void selectAll();

    /// Puts what is selected on the clipboard.
    void copy() const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    [[nodiscard]] QList<QTextLayout::FormatRange> selections() const override;

private:
    void select(int anchor, int position);

    // Places in what is drawn.
    int anchor_ = 0;
    int position_ = 0;
};

} // namespace kelmar
