#pragma once

#include "ui/menu.hpp"
#include "ui/qt/dispatcher.hpp"
#include "ui/qt/main_window.hpp"
#include "ui/uninstaller_view.hpp"

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QSessionManager>
#include <memory>

namespace kelmar {

class AboutPanel;

/// The application: one model and one window. It refuses to end while a run is going on.
class AppDelegate : public QObject {
public:
    /// Starts nothing yet.
    AppDelegate();
    AppDelegate(KelmarPaths paths, UninstallerModel::Sources sources);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate() override;

    /// Opens the window and starts the first scan.
    void applicationDidFinishLaunching();

    /// Returns true if the application may end now; shows nothing if it may not.
    [[nodiscard]] bool applicationShouldTerminate() const { return !model->isWorking(); }

    [[nodiscard]] bool windowShouldClose() const { return !model->isWorking(); }

    const std::shared_ptr<UninstallerModel> model;

    /// Null until `applicationDidFinishLaunching`.
    [[nodiscard]] MainWindow* window() const { return window_.get(); }

    [[nodiscard]] UninstallerView& view() { return view_; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void terminate() const;
    void perform(MenuAction action);
    void endOfSession(QSessionManager& manager) const;
    void renderSoon();

    UninstallerView view_;
    std::unique_ptr<MainWindow> window_;
    QPointer<AboutPanel> about_;
    QBasicTimer render_; ///< active while the page is out of date: fires in the next iteration
};

} // namespace kelmar
