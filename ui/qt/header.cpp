#include "ui/qt/header.hpp"

#include "ui/look.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/text_label.hpp"

#include <QVBoxLayout>

namespace kelmar {

HeaderWidget::HeaderWidget(QWidget* parent)
    : QWidget(parent),
      title_(new TextLabel(TextStyle::title, TextTone::primary)),
      subtitle_(new TextLabel(TextStyle::body, TextTone::secondary)),
      announcer_(*this) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(margins(Look::pageMargin, Look::headerPadding));
    row->setSpacing(Look::sectionGap);
    auto* const icon = new IconLabel(Look::headerIcon);
    icon->showPicture("kelmar-uninstaller");
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(Look::lineGap);
    texts->addStretch();
    texts->addWidget(title_);
    texts->addWidget(subtitle_);
    texts->addStretch();
    row->addWidget(icon, 0, Qt::AlignVCenter);
    row->addLayout(texts, 1);
    // Reserves two lines for the subtitle, so that the page below does not move between phases.
    setMinimumHeight(2 * Look::headerPadding + lineHeight(TextStyle::title) + Look::lineGap +
                     2 * lineHeight(TextStyle::body));
    setAccessibleRole(*title_, QAccessible::Heading);
}

void HeaderWidget::render(const Header& header) {
    title_->showText(header.title);
    subtitle_->showText(header.subtitle);
}

void HeaderWidget::announce(const std::string& text) {
    announcer_.announce(text);
}

} // namespace kelmar
