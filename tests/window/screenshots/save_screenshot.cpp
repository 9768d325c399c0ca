#include "tests/window/screenshots/save_screenshot.hpp"

#include <QImage>

// Last: it defines words that the toolkit's headers use.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace kelmar::test {

bool saveScreenshot(const std::string& screen, const ScreenWindow& window,
                    const std::string& file) {
    Display* const display = XOpenDisplay(screen.c_str());
    if (display == nullptr) {
        return false;
    }
    const Rectangle& place = window.place;
    XImage* const pixels = XGetImage(display, DefaultRootWindow(display), place.x, place.y,
                                     static_cast<unsigned>(place.width),
                                     static_cast<unsigned>(place.height), AllPlanes, ZPixmap);
    bool written = false;
    if (pixels != nullptr && pixels->bits_per_pixel == 32) {
        const QImage image(reinterpret_cast<const uchar*>(pixels->data), pixels->width,
                           pixels->height, pixels->bytes_per_line, QImage::Format_RGB32);
        written = image.convertToFormat(QImage::Format_RGB888)
                      .save(QString::fromStdString(file), "PNG", 0);
    }
    if (pixels != nullptr) {
        XDestroyImage(pixels);
    }
    XCloseDisplay(display);
    return written;
}

} // namespace kelmar::test
