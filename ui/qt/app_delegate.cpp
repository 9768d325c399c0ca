#include "ui/qt/app_delegate.hpp"

#include "ui/qt/about_panel.hpp"
#include "ui/qt/page.hpp"

#include <QApplication>
#include <utility>

namespace kelmar {

AppDelegate::AppDelegate() : AppDelegate(KelmarPaths::current(), {}) {}

AppDelegate::AppDelegate(KelmarPaths paths, UninstallerModel::Sources sources)
    : model(std::make_shared<UninstallerModel>(std::move(paths), std::make_shared<QtDispatcher>(),
                                               std::move(sources))),
      view_(model, [this] { terminate(); }) {
    view_.observe([this] { renderSoon(); });
}

AppDelegate::~AppDelegate() {
    view_.observe([] {});
}

void AppDelegate::applicationDidFinishLaunching() {
    const WindowActions actions{
        [this](Action action) { view_.perform(action); },
        [this](bool all) { view_.setDeleteAllData(all); },
        [this](const std::string& path, bool selected) { view_.setSelected(path, selected); }};
    window_ = std::make_unique<MainWindow>(
        actions, [this](MenuAction action) { perform(action); },
        [this] { return windowShouldClose(); });
    window_->page().render(view_.page());
    // Direct: the signal's sender needs the answer before it returns.
    connect(
        qApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& manager) { endOfSession(manager); }, Qt::DirectConnection);
    window_->open();
    model->scan();
}

void AppDelegate::terminate() const {
    if (applicationShouldTerminate()) {
        QCoreApplication::exit(0);
    }
}

void AppDelegate::endOfSession(QSessionManager& manager) const {
    manager.setRestartHint(QSessionManager::RestartNever);
    if (!applicationShouldTerminate()) {
        manager.cancel();
    }
}

void AppDelegate::perform(MenuAction action) {
    switch (action) {
    case MenuAction::about:
        if (about_ == nullptr) {
            about_ = new AboutPanel(window_.get());
        }
        about_->show();
        about_->raise();
        about_->activateWindow();
        break;
    case MenuAction::hide:
    case MenuAction::minimize:
        window_->showMinimized();
        break;
    case MenuAction::quit:
        terminate();
        break;
    case MenuAction::hideOthers:
    case MenuAction::showAll:
    case MenuAction::copy:
    case MenuAction::selectAll:
        break;
    }
}

void AppDelegate::renderSoon() {
    // The change is visible only after this call returns, and many changes need only one render.
    if (!render_.isActive()) {
        render_.start(0, this);
    }
}

void AppDelegate::timerEvent(QTimerEvent* event) {
    if (event->timerId() != render_.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    render_.stop();
    if (window_ == nullptr) {
        return;
    }
    window_->page().render(view_.page());
    if (window_->page().isAsking() && about_ != nullptr) {
        about_->close(); // it would cover the question
    }
}

} // namespace kelmar
