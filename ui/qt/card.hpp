#pragma once

#include <QFrame>
#include <QVBoxLayout>

namespace kelmar {

/// A rounded box on the page, with rows inside it, one below the other.
class Card : public QFrame {
public:
    explicit Card(QWidget* parent = nullptr);

    [[nodiscard]] QVBoxLayout& rows() { return *rows_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* rows_;
};

/// Draws a card at `place` of `widget` in these colours.
void paintCard(QWidget& widget, const QRectF& place, const QColor& ground, const QColor& edge);

/// Draws a card that fills `widget`.
void paintCard(QWidget& widget, const QColor& ground, const QColor& edge);

/// A horizontal line that starts `indent` units after the leading edge.
class Hairline : public QFrame {
public:
    explicit Hairline(int indent = 0, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int indent_;
};

/// Where the texts of a card's rows begin, after the column of their icons.
int rowTextIndent();

/// The vertical layout of a card's row, with a line above the row unless it is the first one.
QVBoxLayout& layOutRow(QWidget& row, bool first, int indent);

} // namespace kelmar
