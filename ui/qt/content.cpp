#include "ui/qt/content.hpp"

#include "ui/look.hpp"
#include "ui/qt/busy_row.hpp"
#include "ui/qt/callout.hpp"
#include "ui/qt/data_section.hpp"
#include "ui/qt/details.hpp"
#include "ui/qt/found_section.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/progress_section.hpp"
#include "ui/qt/result_sections.hpp"
#include "ui/qt/slim_scroll_bar.hpp"
#include "ui/qt/text_label.hpp"

#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <variant>

namespace kelmar {

ContentWidget::ContentWidget(WindowActions actions, QWidget* parent)
    : QScrollArea(parent),
      actions_(std::move(actions)),
      kind_(std::variant_npos) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new SlimScrollBar);
    setFocusPolicy(Qt::NoFocus);
    auto* const inside = new QWidget;
    column_ = new QVBoxLayout(inside);
    column_->setContentsMargins(margins(Look::pageMargin, Look::sectionGap));
    column_->setSpacing(Look::sectionGap);
    for (std::size_t place = 0; place < places; ++place) {
        // A place of its own for every block, so that a late one comes between the right two.
        column_->addLayout(new QVBoxLayout);
    }
    column_->addStretch(1);
    setWidget(inside);
    viewport()->setAutoFillBackground(false);
    inside->setAutoFillBackground(false);
}

void ContentWidget::resizeEvent(QResizeEvent* event) {
    // The scroll bar takes its room from the margin, so that the content stays where it is.
    const int bar = width() - viewport()->width();
    QMargins margins = column_->contentsMargins();
    margins.setRight(std::max(0, Look::pageMargin - bar));
    column_->setContentsMargins(margins);
    QScrollArea::resizeEvent(event);
}

template <class Block, class... Parts>
Block& ContentWidget::block(Place place, const Parts&... parts) {
    used_.insert(place);
    QWidget*& widget = blocks_.at(static_cast<std::size_t>(place));
    if (widget == nullptr) {
        auto* const made = new Block(parts...);
        widget = made;
        column_->itemAt(static_cast<int>(place))->layout()->addWidget(made);
        keepReadingOrder(place);
    }
    return static_cast<Block&>(*widget);
}

void ContentWidget::keepReadingOrder(Place made) {
    // Screen readers go through the blocks in their stacking order, and what is made is on top.
    for (auto later = static_cast<std::size_t>(made) + 1; later < places; ++later) {
        if (QWidget* const widget = blocks_.at(later)) {
            widget->raise();
        }
    }
}

void ContentWidget::render(const Content& content) {
    used_.clear();
    fills_ = false;
    std::visit([this](const auto& each) { renderBlocks(each); }, content);
    for (std::size_t place = 0; place < places; ++place) {
        if (QWidget* const widget = blocks_.at(place)) {
            widget->setVisible(used_.contains(static_cast<Place>(place)));
        }
    }
    // What is left of the page goes to the record of a run while it is unfolded.
    column_->setStretch(static_cast<int>(Place::details), fills_ ? 1 : 0);
    column_->setStretch(places, fills_ ? 0 : 1);
    if (std::exchange(kind_, content.index()) != content.index()) {
        verticalScrollBar()->setValue(0);
    }
}

void ContentWidget::renderBlocks(const ScanningContent& content) {
    block<BusyRow>(Place::busy).render(content.busy);
}

void ContentWidget::renderBlocks(const NothingFoundContent& content) {
    block<TextLabel>(Place::text, TextStyle::body, TextTone::primary).showText(content.text);
}

void ContentWidget::renderBlocks(const ReadyContent& content) {
    if (content.notice) {
        block<CalloutBox>(Place::notice).render(*content.notice);
    }
    block<FoundSectionWidget>(Place::found).render(content.found);
    if (content.data) {
        block<DataSectionWidget>(Place::data, actions_).render(*content.data);
    }
}

void ContentWidget::renderDetails(const Details& details) {
    block<DetailsWidget>(Place::details, actions_.perform).render(details);
    fills_ = details.shown;
}

void ContentWidget::renderBlocks(const WorkingContent& content) {
    block<ProgressSectionWidget>(Place::progress).render(content);
    renderDetails(content.details);
}

void ContentWidget::renderBlocks(const FinishedContent& content) {
    block<SummarySectionWidget>(Place::summary).render(content.summary);
    if (content.problems) {
        block<ProblemsSectionWidget>(Place::problems).render(*content.problems);
    }
    renderDetails(content.details);
}

} // namespace kelmar
