#include "bench/frame_watch.hpp"

#include "bench/require.hpp"

#include <utility>

#include <X11/Xutil.h>
#include <X11/extensions/Xdamage.h>
#include <poll.h>

namespace kelmar::bench {

namespace {

constexpr int windowWidth = 600;
constexpr int windowHeight = 620;
constexpr int stripTop = 30;
constexpr int stripHeight = 40;
constexpr std::chrono::seconds timeout(20);

/// A window may be destroyed before a request about it arrives: no reason to end the run.
int ignoreError(Display* /*display*/, XErrorEvent* /*error*/) {
    return 0;
}

} // namespace

FrameWatch::FrameWatch() : display_(::XOpenDisplay(nullptr), ::XCloseDisplay) {
    require(display_ != nullptr, "the X server answers");
    ::XSetErrorHandler(ignoreError);
    int damageError = 0;
    require(::XDamageQueryExtension(display_.get(), &damageEvent_, &damageError) != 0,
            "the X server tells what is drawn");
    ::XSelectInput(display_.get(), DefaultRootWindow(display_.get()), SubstructureNotifyMask);
    ::XSync(display_.get(), False);
}

void FrameWatch::takeEvent() {
    XEvent event{};
    ::XNextEvent(display_.get(), &event);
    if (event.type == CreateNotify) {
        windows_[event.xcreatewindow.window] = false;
        ::XDamageCreate(display_.get(), event.xcreatewindow.window, XDamageReportRawRectangles);
        ::XFlush(display_.get());
    } else if (event.type == MapNotify || event.type == UnmapNotify) {
        const auto window =
            windows_.find(event.type == MapNotify ? event.xmap.window : event.xunmap.window);
        if (window != windows_.end()) {
            window->second = event.type == MapNotify;
        }
    } else if (event.type == DestroyNotify) {
        windows_.erase(event.xdestroywindow.window);
    } else if (event.type == damageEvent_ + XDamageNotify) {
        const auto& damage = reinterpret_cast<const XDamageNotifyEvent&>(event);
        const auto window = windows_.find(damage.drawable);
        if (window != windows_.end() && window->second && damage.geometry.width == windowWidth &&
            damage.geometry.height == windowHeight) {
            watched_ = damage.drawable;
            ++drawings_;
        }
    }
}

template <class Enough>
bool FrameWatch::follow(Clock::time_point end, Enough enough) {
    while (!enough()) {
        if (::XPending(display_.get()) > 0) {
            takeEvent();
            continue;
        }
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd wait{ConnectionNumber(display_.get()), POLLIN, 0};
        if (left <= 0 || ::poll(&wait, 1, static_cast<int>(left)) == 0) {
            return false;
        }
    }
    return true;
}

FrameWatch::Clock::time_point FrameWatch::firstFrame() {
    watched_ = 0;
    drawings_ = 0;
    // Mapping a window also counts as a drawing, before the window has any content.
    const auto drawn = [this, looked = std::size_t{0}]() mutable {
        return std::exchange(looked, drawings_) != drawings_ && showsSomething();
    };
    const bool seen = follow(Clock::now() + timeout, drawn);
    const Clock::time_point now = Clock::now();
    require(seen, "something is drawn into a window of 600 by 620");
    return now;
}

bool FrameWatch::showsSomething() const {
    // A strip suffices and is quick to read: both windows have text in it.
    const std::unique_ptr<XImage, void (*)(XImage*)> strip(
        ::XGetImage(display_.get(), watched_, 0, stripTop, windowWidth, stripHeight, AllPlanes,
                    ZPixmap),
        [](XImage* image) { XDestroyImage(image); });
    if (strip == nullptr) {
        return false;
    }
    const unsigned long corner = XGetPixel(strip.get(), 0, 0);
    for (int y = 0; y < stripHeight; ++y) {
        for (int x = 0; x < windowWidth; ++x) {
            if (XGetPixel(strip.get(), x, y) != corner) {
                return true;
            }
        }
    }
    return false;
}

std::size_t FrameWatch::untilStill(std::chrono::milliseconds quiet) {
    const std::size_t before = drawings_;
    const Clock::time_point end = Clock::now() + timeout;
    std::size_t seen = before;
    while (follow(Clock::now() + quiet, [this, seen] { return drawings_ != seen; })) {
        seen = drawings_;
        require(Clock::now() < end, "the window comes to rest");
    }
    return seen - before;
}

std::size_t FrameWatch::drawingsWithin(std::chrono::milliseconds time) {
    const std::size_t before = drawings_;
    follow(Clock::now() + time, [] { return false; });
    return drawings_ - before;
}

void FrameWatch::untilGone() {
    require(follow(Clock::now() + timeout, [this] { return !windows_.contains(watched_); }),
            "the window goes");
}

} // namespace kelmar::bench
