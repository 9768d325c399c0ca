#pragma once

#include "ui/look.hpp"

#include <QLabel>
#include <string>

class QAbstractButton;

namespace kelmar {

/// Plain text that never widens the page: it wraps, inside a word if need be, or loses its middle.
/// Names of files are data: what they hold of markup and of characters that turn or break the line
/// shows as what it is.
class TextLabel : public QLabel {
public:
    enum class Overflow {
        wrap,
        elideMiddle,
    };

    TextLabel(TextStyle style, TextTone tone, Overflow overflow = Overflow::wrap,
              QWidget* parent = nullptr);

    /// Draws nothing anew when `text` is what is shown already.
    void showText(const std::string& text);

    /// A press on the label presses `button`, which it names for people who can't see.
    void nameFor(QAbstractButton* button);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] QString drawn() const;
    void explainElision();

    TextTone tone_;
    Overflow overflow_;
    // The last answer of heightForWidth: layouts ask for the same one many times.
    mutable int measuredWidth_ = -1;
    mutable int measuredHeight_ = 0;
};

} // namespace kelmar
