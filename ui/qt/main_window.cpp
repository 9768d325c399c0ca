#include "ui/qt/main_window.hpp"

#include "ui/look.hpp"
#include "ui/qt/menu.hpp"
#include "ui/qt/menu_bar.hpp"
#include "ui/qt/page.hpp"
#include "ui/qt/symbols.hpp"
#include "ui/texts.hpp"

#include <QCloseEvent>
#include <QScreen>
#include <QTimerEvent>
#include <utility>

namespace kelmar {

namespace {

constexpr QSize contentSize(Look::windowWidth, Look::windowHeight);

QIcon icon() {
    QIcon icon;
    icon.addPixmap(picture("kelmar-uninstaller", Look::windowIcon, 1));
    return icon;
}

} // namespace

MainWindow::MainWindow(const WindowActions& actions, const std::function<void(MenuAction)>& menu,
                       std::function<bool()> shouldClose)
    : shouldClose_(std::move(shouldClose)),
      page_(new PageWidget(actions)) {
    setWindowTitle(Texts::program);
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(page_);
    auto* const bar = new MenuBar;
    setMenuBar(bar);
    fillMenuBar(*bar, mainMenu(), {menu, [this](MenuAction action) {
                                       // The panel would cover the question.
                                       return action != MenuAction::about || !page_->isAsking();
                                   }});
    page_->observeAsking([bar](bool asking) { bar->setDimmed(asking); });
    setFixedSize(contentSize);
}

void MainWindow::open() {
    const QRect room = screen()->availableGeometry();
    move(room.x() + (room.width() - contentSize.width()) / 2,
         room.y() + (room.height() - contentSize.height()) / 2);
    // No button gets the focus until a key moves it there.
    page_->setFocus();
    show();
    raise();
    activateWindow();
    // Desktops show it elsewhere than in the window, so opening need not wait for it.
    afterwards_.start(0, this);
}

void MainWindow::timerEvent(QTimerEvent* event) {
    if (event->timerId() == afterwards_.timerId()) {
        afterwards_.stop();
        setWindowIcon(icon());
    } else {
        QMainWindow::timerEvent(event);
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(shouldClose_());
}

} // namespace kelmar
