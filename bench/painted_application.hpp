#pragma once

#include "ui/qt/app_delegate.hpp"

#include <QApplication>
#include <chrono>
#include <cstddef>
#include <functional>

namespace kelmar::bench {

/// An application that watches its own window: when a page was rendered and painted, how often in
/// one iteration of the event loop, and how long an iteration took.
class PaintedApplication : public QApplication {
public:
    using Clock = std::chrono::steady_clock;

    /// Qt's constructor arguments; they must outlive this object.
    PaintedApplication(int& count, char** arguments);

    /// Watches the window of `delegate`, which must stay open until `stopWatching`. Calls
    /// `rendered` when the page shows everything that the model has published so far, and `painted`
    /// when the X server has confirmed that it is on the screen.
    void watch(const AppDelegate& delegate, std::function<void()> rendered,
               std::function<void()> painted);

    void stopWatching() { window_ = nullptr; }

    /// Runs the event loop until `enough` returns true. Ends the run if that never happens.
    static void runUntil(const std::function<bool()>& enough);

    /// The largest number of renders of the page in one iteration of the event loop since `watch`.
    [[nodiscard]] std::size_t mostRendersInATurn() const { return mostRenders_; }

    /// The number of paints since `watch`.
    [[nodiscard]] std::size_t paints() const { return paints_; }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void endTurn();

    const MainWindow* window_ = nullptr;
    std::function<void()> rendered_;
    std::function<void()> painted_;
    std::size_t changes_ = 0;     ///< the page's changes, as last read
    std::size_t turnChanges_ = 0; ///< the same, when the iteration began
    std::size_t mostRenders_ = 0;
    std::size_t paints_ = 0;
};

} // namespace kelmar::bench
