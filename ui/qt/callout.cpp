#include "ui/qt/callout.hpp"

#include "ui/qt/colours.hpp"
#include "ui/qt/note_row.hpp"

#include <QPainter>
#include <QVBoxLayout>

namespace kelmar {

CalloutBox::CalloutBox(QWidget* parent)
    : QWidget(parent),
      note_(new NoteRow(20, TextStyle::body, TextLabel::Tone::primary)) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->addWidget(note_);
}

void CalloutBox::render(const Callout& callout) {
    tint_ = callout.tint;
    note_->render(callout);
}

void CalloutBox::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QColor ground = colours.of(tint_);
    QColor edge = ground;
    ground.setAlphaF(0.1F);
    edge.setAlphaF(0.35F);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(ground);
    painter.setPen(edge);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 10, 10);
}

} // namespace kelmar
