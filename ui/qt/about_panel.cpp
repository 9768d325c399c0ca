#include "ui/qt/about_panel.hpp"

#include "ui/about.hpp"
#include "ui/look.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/text_label.hpp"

#include <QVBoxLayout>

namespace kelmar {

namespace {

/// Square buttons to leave room for beside the title: two on either side of its centre.
constexpr int frameButtons = 4;

} // namespace

AboutPanel::AboutPanel(QWidget* parent) : QDialog(parent) {
    const About shown = about();
    setWindowTitle(QString::fromStdString(shown.title));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margins(Look::aboutMargin, Look::pageMargin));
    column->setSpacing(Look::partGap);
    auto* const icon = new IconLabel(Look::aboutIcon);
    icon->showPicture("kelmar-uninstaller");
    auto* const name = new TextLabel(TextStyle::sectionTitle, TextTone::primary);
    name->showText(shown.name);
    auto* const version = new TextLabel(TextStyle::callout, TextTone::secondary);
    version->showText(shown.version);
    column->addWidget(icon, 0, Qt::AlignHCenter);
    column->addWidget(name, 0, Qt::AlignHCenter);
    column->addWidget(version, 0, Qt::AlignHCenter);
    QFont bold = font(); // as desktops draw a title
    bold.setBold(true);
    const QFontMetrics title(bold);
    column->addStrut(title.horizontalAdvance(windowTitle()) + frameButtons * title.height() -
                     2 * Look::aboutMargin);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace kelmar
