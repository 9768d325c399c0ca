#include "ui/qt/callout.hpp"

#include "ui/look.hpp"
#include "ui/qt/card.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/note_row.hpp"

#include <QVBoxLayout>

namespace kelmar {

CalloutBox::CalloutBox(QWidget* parent)
    : QWidget(parent),
      note_(new NoteRow(Look::rowIcons, TextStyle::body, TextTone::primary)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margins(Look::cardPadding, Look::partGap));
    column->addWidget(note_);
}

void CalloutBox::render(const Callout& callout) {
    tint_ = callout.tint;
    note_->render(callout);
}

void CalloutBox::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QColor edge = colours.of(tint_);
    edge.setAlphaF(static_cast<float>(Look::tintedEdge));
    paintCard(*this, colours.tinted(colours.of(tint_)), edge);
}

} // namespace kelmar
