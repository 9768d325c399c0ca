#pragma once

#include "ui/look.hpp"

#include <QLabel>
#include <QTextLayout>
#include <optional>
#include <string>
#include <vector>

class QAbstractButton;

namespace kelmar {

/// Plain text that never widens the page: it wraps, inside a word if it must, or loses its middle.
/// File names are data: markup and characters that would turn or break the line are shown
/// literally.
class TextLabel : public QLabel {
public:
    enum class Overflow {
        wrap,
        elideMiddle, ///< for more than two lines; always reserves room for two
    };

    TextLabel(TextStyle style, TextTone tone, Overflow overflow = Overflow::wrap,
              QWidget* parent = nullptr);

    /// Does nothing if `text` is already shown.
    void showText(const std::string& text);

    void setTone(TextTone tone);

    /// Makes a press on the label press `button`, whose accessible name is this text: to screen
    /// readers the two are one control.
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

    /// The position in `drawn` of the character at `point`.
    [[nodiscard]] int placeAt(const QPoint& point) const;

    /// The selected ranges of `drawn`.
    [[nodiscard]] virtual QList<QTextLayout::FormatRange> selections() const { return {}; }

private:
    double layOut(QTextLayout& layout, double width) const;
    [[nodiscard]] QString elided() const;
    [[nodiscard]] int lines(const QString& text, int width) const;
    void explainElision();
    void forgetSizes();

    TextTone tone_;
    Overflow overflow_;
    QAbstractButton* button_ = nullptr; ///< the button that it names
    // Caches: for every change of the page, layouts ask for the same few sizes many times.
    mutable std::optional<QSize> hint_;
    mutable std::vector<QSize> sizes_; ///< heightForWidth, for the widths asked for last
};

} // namespace kelmar
