#include "ui/qt/folder_list.hpp"

#include "system/text/harmless_text.hpp"
#include "ui/look.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/card.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/size_label.hpp"
#include "ui/qt/text_label.hpp"

#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace kelmar {

namespace {

/// Aligns `text` with the boxes: the room for their focus ring is part of the margin.
QLayout* indented(QWidget* text) {
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(Look::focusRoom, 0, 0, 0);
    row->addWidget(text);
    return row;
}

} // namespace

FolderRowWidget::FolderRowWidget(const SelectFolder& select, QWidget* parent)
    : QWidget(parent),
      check_(new CheckBox),
      summary_(new TextLabel(TextStyle::callout, TextTone::secondary)),
      size_(new SizeLabel) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Look::partGap);
    row->addWidget(check_);
    row->addWidget(summary_, 1);
    row->addWidget(size_);
    check_->onRequest([this, select](bool selected) { select(path_, selected); });
}

void FolderRowWidget::render(const FolderRow& row) {
    path_ = row.path;
    const QString name = QString::fromStdString(harmlessText(row.name));
    if (name != check_->text()) {
        check_->setText(name);
        check_->setShortcut({}); // an ampersand in a name must not create a shortcut
    }
    check_->setChecked(row.checked);
    check_->setAccessibleDescription(QString::fromStdString(row.summary));
    summary_->showText(row.summary);
    size_->render(row.size);
}

int FolderRowWidget::nameWidth() const {
    return check_->sizeHint().width();
}

void FolderRowWidget::setNameWidth(int width) {
    if (width != check_->width()) {
        check_->setFixedWidth(width);
    }
}

FolderListWidget::FolderListWidget(SelectFolder select, QWidget* parent)
    : QWidget(parent),
      select_(std::move(select)),
      heading_(new TextLabel(TextStyle::callout, TextTone::secondary)),
      others_(new TextLabel(TextStyle::callout, TextTone::secondary)),
      folders_(new QVBoxLayout),
      rows_(*folders_) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new Hairline);
    auto* const inside = new QVBoxLayout;
    inside->setContentsMargins(Look::cardPadding - Look::focusRoom, Look::partGap,
                               Look::cardPadding, Look::partGap);
    inside->setSpacing(Look::lineGap);
    // The room for the boxes' focus rings reaches into the margin, to align them with the heading.
    folders_->setSpacing(0);
    inside->addLayout(indented(heading_));
    inside->addLayout(folders_);
    inside->addLayout(indented(others_));
    column->addLayout(inside);
    setAccessibleRole(*heading_, QAccessible::Heading);
}

int FolderListWidget::nameWidth() const {
    int widest = 0;
    for (const FolderRowWidget* const row : rows_.rows()) {
        widest = std::max(widest, row->nameWidth());
    }
    return widest;
}

void FolderListWidget::setNameWidth(int width) {
    for (FolderRowWidget* const row : rows_.rows()) {
        row->setNameWidth(width);
    }
}

void FolderListWidget::render(const FolderList& list) {
    heading_->showText(list.heading);
    rows_.render(list.rows, [this](std::size_t) { return new FolderRowWidget(select_); });
    others_->raise(); // last for screen readers as well, which follow the stacking order
    others_->setVisible(list.otherItems.has_value());
    others_->showText(list.otherItems.value_or(""));
}

} // namespace kelmar
