#include "ui/qt/content.hpp"

#include "ui/look.hpp"
#include "ui/qt/busy_row.hpp"
#include "ui/qt/callout.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/data_section.hpp"
#include "ui/qt/details.hpp"
#include "ui/qt/found_section.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/progress_section.hpp"
#include "ui/qt/result_sections.hpp"
#include "ui/qt/slim_scroll_bar.hpp"
#include "ui/qt/text_label.hpp"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <variant>

namespace kelmar {

namespace {

/// Around a block; the column's own margins exclude the room for focus rings.
constexpr QMargins blockMargins(Look::focusRoom, Look::sectionGap, 0, 0);

/// Fades out the scrolled content at one edge, so that it never touches the line there.
class Veil : public QWidget {
public:
    Veil(bool above, QWidget* parent) : QWidget(parent), above_(above) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QColor page = Colours(palette()).page;
        QLinearGradient gradient(0, above_ ? 0 : height(), 0, above_ ? height() : 0);
        gradient.setColorAt(0, page);
        gradient.setColorAt(2.0 * Look::hairline / Look::scrollVeil, page);
        page.setAlpha(0);
        gradient.setColorAt(1, page);
        QPainter(this).fillRect(rect(), gradient);
    }

private:
    bool above_;
};

} // namespace

ContentWidget::ContentWidget(WindowActions actions, QWidget* parent)
    : QScrollArea(parent),
      actions_(std::move(actions)),
      above_(new Veil(true, this)),
      below_(new Veil(false, this)),
      kind_(std::variant_npos) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new SlimScrollBar);
    // Unfolded content has its final place only once the range has grown.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] {
        if (std::exchange(reveals_, false)) {
            revealData();
        }
        veil();
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ContentWidget::veil);
    setFocusPolicy(Qt::NoFocus);
    auto* const inside = new QWidget;
    column_ = new QVBoxLayout(inside);
    column_->setContentsMargins(Look::pageMargin - Look::focusRoom, 0, Look::pageMargin,
                                Look::sectionGap);
    column_->setSpacing(0);
    for (std::size_t place = 0; place < places; ++place) {
        // One layout for each block, so that a block made later comes at its place in the order.
        column_->addLayout(new QVBoxLayout);
    }
    around_.fill(blockMargins);
    // The room for its control's focus ring reaches into the margin, so that the rest is aligned.
    around(Place::details).setLeft(0);
    around(Place::text) = margins(Look::noticeMargin, Look::sectionGap);
    column_->addStretch(1);
    setWidget(inside);
    viewport()->setAutoFillBackground(false);
    inside->setAutoFillBackground(false);
    // The toolkit scrolls only if the Tab key moves the focus inside the column.
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*before*/, QWidget* now) { bringIntoSight(now); });
}

ContentWidget::~ContentWidget() {
    // Destroying the blocks moves the focus.
    disconnect(qApp, nullptr, this, nullptr);
}

void ContentWidget::bringIntoSight(QWidget* focused) {
    // Do not scroll while a mouse button is held down: its target would move away.
    if (widget()->isAncestorOf(focused) && QGuiApplication::mouseButtons() == Qt::NoButton) {
        ensureWidgetVisible(focused, 0, Look::sectionGap);
    }
}

void ContentWidget::resizeEvent(QResizeEvent* event) {
    // The scroll bar takes its width from the margin, so that the content does not move.
    const int bar = width() - viewport()->width();
    QMargins margins = column_->contentsMargins();
    margins.setRight(std::max(0, Look::pageMargin - bar));
    column_->setContentsMargins(margins);
    QScrollArea::resizeEvent(event);
    above_->setGeometry(0, 0, viewport()->width(), Look::scrollVeil);
    below_->setGeometry(0, height() - Look::scrollVeil, viewport()->width(), Look::scrollVeil);
}

void ContentWidget::veil() {
    const QScrollBar& bar = *verticalScrollBar();
    above_->setVisible(bar.value() > bar.minimum());
    below_->setVisible(bar.value() < bar.maximum());
    above_->raise();
    below_->raise();
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

QLayout& ContentWidget::layoutOf(Place place) const {
    return *column_->itemAt(static_cast<int>(place))->layout();
}

void ContentWidget::revealData() {
    const QWidget* const block = blocks_.at(static_cast<std::size_t>(Place::data));
    if (block == nullptr) {
        return;
    }
    // The whole block if it fits, else its top.
    const int top = block->y() - Look::sectionGap;
    const int bottom = block->y() + block->height() + Look::sectionGap - viewport()->height();
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(std::max(bar.value(), std::min(top, bottom)));
}

void ContentWidget::keepReadingOrder(Place made) {
    // Screen readers follow the stacking order, and new widgets are on top.
    for (auto later = static_cast<std::size_t>(made) + 1; later < places; ++later) {
        if (QWidget* const widget = blocks_.at(later)) {
            widget->raise();
        }
    }
}

void ContentWidget::render(const Content& content) {
    used_.clear();
    fills_.reset();
    std::visit([this](const auto& each) { renderBlocks(each); }, content);
    for (std::size_t place = 0; place < places; ++place) {
        const bool used = used_.contains(static_cast<Place>(place));
        if (QWidget* const widget = blocks_.at(place)) {
            widget->setVisible(used);
        }
        // No margins for a place that shows nothing: they would take room.
        layoutOf(static_cast<Place>(place))
            .setContentsMargins(used ? around_.at(place) : QMargins());
    }
    // The remaining height goes to the log while it is unfolded, or to a lone text, which it
    // centres.
    for (std::size_t place = 0; place < places; ++place) {
        column_->setStretch(static_cast<int>(place), fills_ == static_cast<Place>(place) ? 1 : 0);
    }
    column_->setStretch(places, fills_ ? 0 : 1);
    if (std::exchange(kind_, content.index()) != content.index()) {
        verticalScrollBar()->setValue(0);
        reveals_ = false;
    }
}

void ContentWidget::renderBlocks(const ScanningContent& content) {
    auto& row = block<BusyRow>(Place::busy);
    row.render(content.busy);
    layoutOf(Place::busy).setAlignment(&row, Qt::AlignCenter);
    fills_ = Place::busy;
}

void ContentWidget::renderBlocks(const NothingFoundContent& content) {
    auto& text = block<TextLabel>(Place::text, TextStyle::body, TextTone::secondary);
    text.setAlignment(Qt::AlignHCenter);
    text.showText(content.text);
    layoutOf(Place::text).setAlignment(&text, Qt::AlignVCenter);
    fills_ = Place::text;
}

void ContentWidget::renderBlocks(const ReadyContent& content) {
    if (content.notice) {
        block<CalloutBox>(Place::notice).render(*content.notice);
    }
    block<FoundSectionWidget>(Place::found).render(content.found);
    // A heading without rows needs no gap of its own.
    around(Place::data).setTop(content.found.rows.empty() ? Look::lineGap : Look::sectionGap);
    const bool unfolded = content.data && !content.data->lists.empty();
    reveals_ = unfolded && !std::exchange(unfolded_, unfolded);
    unfolded_ = unfolded;
    if (content.data) {
        block<DataSectionWidget>(Place::data, actions_).render(*content.data);
    }
}

void ContentWidget::renderDetails(const Details& details) {
    block<DetailsWidget>(Place::details, actions_.perform).render(details);
    if (details.shown) {
        fills_ = Place::details;
    }
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
