#include "tests/accessibility/focus_tracker.hpp"

#include <atspi/atspi.h>

namespace kelmar::test {

namespace {

constexpr const char* change = "object:state-changed:focused";

} // namespace

FocusTracker::FocusTracker() : listener_(atspi_event_listener_new(onEvent, this, nullptr)) {
    atspi_event_listener_register(listener_, change, nullptr);
}

FocusTracker::~FocusTracker() {
    atspi_event_listener_deregister(listener_, change, nullptr);
    g_object_unref(listener_);
}

Accessible FocusTracker::element() const {
    return latest_.is(Accessible::focused) ? latest_ : Accessible();
}

void FocusTracker::onEvent(_AtspiEvent* event, void* self) {
    if (event->detail1 != 0) {
        static_cast<FocusTracker*>(self)->latest_ = Accessible(*event);
    }
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

} // namespace kelmar::test
