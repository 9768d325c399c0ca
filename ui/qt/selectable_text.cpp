#include "ui/qt/selectable_text.hpp"

#include "ui/qt/colours.hpp"

#include <QClipboard>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <algorithm>
#include <cstdlib>

namespace kelmar {

SelectableText::SelectableText(TextStyle style, TextTone tone, QWidget* parent)
    : TextLabel(style, tone, Overflow::wrap, parent) {
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::IBeamCursor);
}

QString SelectableText::selected() const {
    const QString whole = drawn();
    const int length = std::abs(position_ - anchor_);
    if (length >= whole.size()) {
        return text();
    }
    QString part = whole.mid(std::min(anchor_, position_), length);
    // Formatting characters that were added for drawing are not part of the text.
    part.removeIf([](QChar character) { return character.category() == QChar::Other_Format; });
    return part;
}

void SelectableText::select(int anchor, int position) {
    if (anchor != anchor_ || position != position_) {
        anchor_ = anchor;
        position_ = position;
        update();
    }
}

void SelectableText::selectAll() {
    select(0, static_cast<int>(drawn().size()));
}

void SelectableText::copy() const {
    if (const QString part = selected(); !part.isEmpty()) {
        QGuiApplication::clipboard()->setText(part);
    }
}

void SelectableText::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        const int place = placeAt(event->pos());
        select(place, place);
    }
}

void SelectableText::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0) {
        select(anchor_, placeAt(event->pos()));
    }
}

void SelectableText::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
    selectAll();
}

void SelectableText::focusOutEvent(QFocusEvent* event) {
    TextLabel::focusOutEvent(event);
    // Keep the selection while a menu is open: it takes the focus, and may be there to copy.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason &&
        event->reason() != Qt::ActiveWindowFocusReason) {
        select(0, 0);
    }
}

QList<QTextLayout::FormatRange> SelectableText::selections() const {
    if (anchor_ == position_) {
        return {};
    }
    const Colours colours(palette());
    QTextLayout::FormatRange range;
    range.start = std::min(anchor_, position_);
    range.length = std::abs(position_ - anchor_);
    range.format.setBackground(colours.accent);
    range.format.setForeground(colours.onAccent);
    return {range};
}

} // namespace kelmar
