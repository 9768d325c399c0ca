#include "bench/painted_application.hpp"

#include "bench/require.hpp"
#include "ui/qt/page.hpp"

#include <QAbstractEventDispatcher>
#include <QEvent>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include <xcb/xcb.h>

namespace kelmar::bench {

namespace {

constexpr std::chrono::seconds timeout(120);

/// Waits until the X server has processed all earlier requests.
void finishDrawing() {
    const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    require(x11 != nullptr, "the window is on an X server");
    xcb_connection_t* const connection = x11->connection();
    // The server replies in order, and this request has no other effect.
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

} // namespace

PaintedApplication::PaintedApplication(int& count, char** arguments)
    : QApplication(count, arguments) {
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
            [this] { endTurn(); });
}

void PaintedApplication::watch(const AppDelegate& delegate, std::function<void()> rendered,
                               std::function<void()> painted) {
    window_ = delegate.window();
    rendered_ = std::move(rendered);
    painted_ = std::move(painted);
    changes_ = window_->page().changes();
    turnChanges_ = changes_;
    mostRenders_ = 0;
    paints_ = 0;
}

void PaintedApplication::runUntil(const std::function<bool()>& enough) {
    const Clock::time_point end = Clock::now() + timeout;
    while (!enough()) {
        require(Clock::now() < end, "the window comes to where it should be");
        processEvents(QEventLoop::WaitForMoreEvents);
    }
}

bool PaintedApplication::notify(QObject* receiver, QEvent* event) {
    // Read now: the handler may delete the event.
    const bool paints = receiver == window_ && event->type() == QEvent::UpdateRequest;
    const bool handled = QApplication::notify(receiver, event);
    if (window_ == nullptr) {
        return handled;
    }
    if (const std::size_t now = window_->page().changes(); std::exchange(changes_, now) != now) {
        rendered_();
    }
    if (paints) {
        finishDrawing();
        ++paints_;
        painted_();
    }
    return handled;
}

void PaintedApplication::endTurn() {
    if (window_ != nullptr) {
        const std::size_t now = window_->page().changes();
        mostRenders_ = std::max(mostRenders_, now - std::exchange(turnChanges_, now));
    }
}

} // namespace kelmar::bench
