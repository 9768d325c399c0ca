#include "tests/screen/screen.hpp"

#include "tests/support/timeouts.hpp"

#include <algorithm>
#include <stdexcept>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <poll.h>

namespace kelmar::test {

namespace {

/// A window may vanish between two questions about it; the answer is then that it isn't there.
int ignore(Display* /*display*/, XErrorEvent* /*error*/) {
    return 0;
}

Atom atom(Display* display, const char* name) {
    return XInternAtom(display, name, False);
}

std::string textOf(Display* display, Window window, Atom property) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* bytes = nullptr;
    constexpr long most = 1'000'000;
    XGetWindowProperty(display, window, property, 0, most, False, AnyPropertyType, &type, &format,
                       &count, &left, &bytes);
    std::string text;
    if (bytes != nullptr && format == 8) {
        text.assign(reinterpret_cast<const char*>(bytes), count);
    }
    XFree(bytes);
    return text;
}

KeyCode keyCode(Display* display, const std::string& name) {
    const KeySym symbol = XStringToKeysym(name.c_str());
    const KeyCode code = symbol == NoSymbol ? KeyCode(0) : XKeysymToKeycode(display, symbol);
    if (code == 0) {
        throw std::runtime_error("no such key: " + name);
    }
    return code;
}

} // namespace

Screen::Screen() : server_(width, height) {
    XSetErrorHandler(ignore);
    display_ = XOpenDisplay(name().c_str());
    if (display_ == nullptr) {
        throw std::runtime_error("no connection to the screen " + name());
    }
    moveTo({width - 1, height - 1}); // out of the way: what the mouse is over looks different
}

Screen::~Screen() {
    XCloseDisplay(display_);
}

std::vector<ScreenWindow> Screen::windows() const {
    Window root = None;
    Window parent = None;
    Window* children = nullptr;
    unsigned count = 0;
    XQueryTree(display_, DefaultRootWindow(display_), &root, &parent, &children, &count);
    std::vector<ScreenWindow> list;
    for (unsigned index = 0; index < count; ++index) {
        XWindowAttributes attributes{};
        if (XGetWindowAttributes(display_, children[index], &attributes) != 0 &&
            attributes.map_state == IsViewable && attributes.c_class == InputOutput) {
            list.push_back({children[index],
                            textOf(display_, children[index], atom(display_, "_NET_WM_NAME")),
                            {attributes.x, attributes.y, attributes.width, attributes.height}});
        }
    }
    XFree(children);
    return list;
}

void Screen::press(const std::string& keys) const {
    std::vector<KeyCode> codes;
    std::size_t begin = 0;
    for (std::size_t end = keys.find('+'); begin < keys.size(); end = keys.find('+', begin)) {
        std::string name = keys.substr(begin, end - begin);
        begin = end == std::string::npos ? keys.size() : end + 1;
        name += name == "Shift" || name == "Control" || name == "Alt" ? "_L" : "";
        codes.push_back(keyCode(display_, name));
    }
    for (const KeyCode code : codes) {
        XTestFakeKeyEvent(display_, code, True, CurrentTime);
    }
    std::reverse(codes.begin(), codes.end());
    for (const KeyCode code : codes) {
        XTestFakeKeyEvent(display_, code, False, CurrentTime);
    }
    XSync(display_, False);
}

void Screen::moveTo(Point place) const {
    XTestFakeMotionEvent(display_, 0, place.x, place.y, CurrentTime);
    XSync(display_, False);
}

void Screen::click(Point place) const {
    moveTo(place);
    XTestFakeButtonEvent(display_, Button1, True, CurrentTime);
    XTestFakeButtonEvent(display_, Button1, False, CurrentTime);
    XSync(display_, False);
}

void Screen::scrollDown(Point place, int notches) const {
    moveTo(place);
    for (; notches > 0; --notches) {
        XTestFakeButtonEvent(display_, Button5, True, CurrentTime);
        XTestFakeButtonEvent(display_, Button5, False, CurrentTime);
    }
    XSync(display_, False);
}

void Screen::askToClose(const ScreenWindow& window) const {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window.id;
    event.xclient.message_type = atom(display_, "WM_PROTOCOLS");
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(atom(display_, "WM_DELETE_WINDOW"));
    event.xclient.data.l[1] = CurrentTime;
    XSendEvent(display_, window.id, False, NoEventMask, &event);
    XSync(display_, False);
}

std::optional<Point> Screen::fixedSize(const ScreenWindow& window) const {
    XSizeHints hints{};
    long supplied = 0;
    if (XGetWMNormalHints(display_, window.id, &hints, &supplied) == 0 ||
        (hints.flags & PMinSize) == 0 || (hints.flags & PMaxSize) == 0 ||
        hints.min_width != hints.max_width || hints.min_height != hints.max_height) {
        return std::nullopt;
    }
    return Point{hints.min_width, hints.min_height};
}

std::optional<std::string> Screen::clipboard() const {
    const Window own =
        XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 1, 1, 0, 0, 0);
    const Atom place = atom(display_, "KELMAR_TEST");
    XConvertSelection(display_, atom(display_, "CLIPBOARD"), atom(display_, "UTF8_STRING"), place,
                      own, CurrentTime);
    std::optional<std::string> text;
    XEvent event{};
    for (const Deadline deadline; !deadline.hasPassed();) {
        if (XCheckTypedWindowEvent(display_, own, SelectionNotify, &event) != 0) {
            if (event.xselection.property != None) {
                text = textOf(display_, own, place);
            }
            break;
        }
        ::poll(nullptr, 0, 10);
    }
    XDestroyWindow(display_, own);
    return text;
}

} // namespace kelmar::test
