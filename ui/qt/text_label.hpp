#pragma once

#include "ui/look.hpp"

#include <QLabel>
#include <QTextLayout>
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
        elideMiddle, ///< of what takes more than two lines; there is room for two in any case
    };

    TextLabel(TextStyle style, TextTone tone, Overflow overflow = Overflow::wrap,
              QWidget* parent = nullptr);

    /// Draws nothing anew when `text` is what is shown already.
    void showText(const std::string& text);

    void setTone(TextTone tone);

    /// A press on the label presses `button`, which bears its name for people who can't see: to
    /// them the two are one.
    void nameFor(QAbstractButton* button);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    /// The text as it is drawn.
    [[nodiscard]] QString drawn() const;

    /// The place in `drawn` of the character at `point`.
    [[nodiscard]] int placeAt(const QPoint& point) const;

    /// What is selected of `drawn`.
    [[nodiscard]] virtual QList<QTextLayout::FormatRange> selections() const { return {}; }

private:
    double layOut(QTextLayout& layout, double width) const;
    [[nodiscard]] QString elided() const;
    [[nodiscard]] int lines(const QString& text, int width) const;
    void explainElision();

    TextTone tone_;
    Overflow overflow_;
    QAbstractButton* button_ = nullptr; ///< that it names
    // The last answer of heightForWidth: layouts ask for the same one many times.
    mutable int measuredWidth_ = -1;
    mutable int measuredHeight_ = 0;
};

} // namespace kelmar
