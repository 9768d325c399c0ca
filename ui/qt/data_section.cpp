#include "ui/qt/data_section.hpp"

#include "ui/look.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/push_button.hpp"
#include "ui/qt/size_label.hpp"
#include "ui/qt/text_label.hpp"
#include "ui/qt/toggle_switch.hpp"

#include <algorithm>
#include <utility>

namespace kelmar {

DataSectionWidget::DataSectionWidget(WindowActions actions, QWidget* parent)
    : Section(parent),
      actions_(std::move(actions)),
      label_(new TextLabel(TextStyle::body, TextTone::primary)),
      total_(new SizeLabel),
      switch_(new ToggleSwitch),
      line_(new TextLabel(TextStyle::callout, TextTone::secondary)),
      folders_(new PushButton(PushButton::Size::regular)),
      listed_(new QVBoxLayout),
      lists_(*listed_) {
    auto* const choice = new QHBoxLayout;
    choice->setContentsMargins(Look::focusRoom, 0, 0, 0);
    choice->setSpacing(Look::partGap);
    choice->addWidget(label_, 1);
    choice->addWidget(total_);
    choice->addWidget(switch_);
    auto* const inside = new QVBoxLayout;
    // The room for a control's focus ring counts as part of the margin.
    constexpr int padding = Look::cardPadding - Look::focusRoom;
    inside->setContentsMargins(margins(padding));
    inside->setSpacing(Look::lineGap);
    inside->addLayout(choice);
    auto* const under = new QHBoxLayout;
    // Leaves the column of the switch free.
    constexpr int column = Look::columnGap + Look::switchWidth + 2 * Look::focusRoom;
    under->setContentsMargins(Look::focusRoom, 0, column, 0);
    under->addWidget(line_);
    inside->addLayout(under);
    auto* const button = new QHBoxLayout;
    button->setContentsMargins(0, Look::partGap - Look::lineGap, 0, 0);
    button->addWidget(folders_);
    button->addStretch();
    inside->addLayout(button);
    card().rows().addLayout(inside);
    listed_->setSpacing(0);
    card().rows().addLayout(listed_);

    label_->nameFor(switch_);
    switch_->onRequest([this](bool on) { actions_.setDeleteAllData(on); });
    connect(folders_, &QAbstractButton::clicked, this,
            [this] { actions_.perform(folders_->shown().action); });
}

void DataSectionWidget::render(const DataSection& section) {
    renderTitle(section.title);
    label_->showText(section.label);
    total_->render(section.total);
    switch_->setChecked(section.on);
    switch_->setAccessibleDescription(QString::fromStdString(section.line));
    line_->showText(section.line);
    folders_->render(section.folders);
    lists_.render(section.lists,
                  [this](std::size_t) { return new FolderListWidget(actions_.setSelected); });
    int widest = 0;
    for (const FolderListWidget* const list : lists_.rows()) {
        widest = std::max(widest, list->nameWidth());
    }
    for (FolderListWidget* const list : lists_.rows()) {
        list->setNameWidth(widest);
    }
}

} // namespace kelmar
