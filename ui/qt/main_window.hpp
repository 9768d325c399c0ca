#pragma once

#include "ui/menu.hpp"
#include "ui/window_actions.hpp"

#include <QBasicTimer>
#include <QMainWindow>
#include <functional>

namespace kelmar {

class PageWidget;

/// The one window: 600 by 620, with the menu bar and the page in it.
class MainWindow : public QMainWindow {
public:
    /// Calls `shouldClose` before the window closes, whatever the reason.
    MainWindow(const WindowActions& actions, const std::function<void(MenuAction)>& menu,
               std::function<bool()> shouldClose);

    [[nodiscard]] PageWidget& page() const { return *page_; }

    /// Shows the window in the middle of the screen and requests the keyboard's focus.
    void open();

protected:
    void closeEvent(QCloseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    std::function<bool()> shouldClose_;
    PageWidget* page_;
    QBasicTimer afterwards_; ///< for work that can wait until the window has opened
};

} // namespace kelmar
