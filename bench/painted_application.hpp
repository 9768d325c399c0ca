#pragma once

#include "ui/qt/app_delegate.hpp"

#include <QApplication>
#include <chrono>
#include <cstddef>
#include <functional>

namespace kelmar::bench {

/// An application that sees from inside what its window does: when a page was rendered and when it
/// was painted, how often in one turn of the event loop, and how long a turn was.
class PaintedApplication : public QApplication {
public:
    using Clock = std::chrono::steady_clock;

    /// The two are what Qt wants of a program; they outlive this.
    PaintedApplication(int& count, char** arguments);

    /// Watches the window of `delegate`, which stays open until `stopWatching`.
    /// `rendered` is called when the page has taken in what the model published until then, and
    /// `painted` when the X server has confirmed that it is on the screen.
    void watch(const AppDelegate& delegate, std::function<void()> rendered,
               std::function<void()> painted);

    void stopWatching() { window_ = nullptr; }

    /// Lets the event loop run until `enough` says so. Ends the run when that never happens.
    static void runUntil(const std::function<bool()>& enough);

    /// The largest number of pages rendered in one turn of the event loop since `watch`.
    [[nodiscard]] std::size_t mostRendersInATurn() const { return mostRenders_; }

    /// The number of times that something was painted since `watch`.
    [[nodiscard]] std::size_t paints() const { return paints_; }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void endTurn();

    const MainWindow* window_ = nullptr;
    std::function<void()> rendered_;
    std::function<void()> painted_;
    std::size_t changes_ = 0;     ///< of the page, as last seen
    std::size_t turnChanges_ = 0; ///< the same, when the turn began
    std::size_t mostRenders_ = 0;
    std::size_t paints_ = 0;
};

} // namespace kelmar::bench
