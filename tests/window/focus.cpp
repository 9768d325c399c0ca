#include "tests/window/focus.hpp"

#include <atspi/atspi.h>

namespace kelmar::test {

namespace {

constexpr const char* change = "object:state-changed:focused";

} // namespace

Focus::Focus() : listener_(atspi_event_listener_new(take, this, nullptr)) {
    atspi_event_listener_register(listener_, change, nullptr);
}

Focus::~Focus() {
    atspi_event_listener_deregister(listener_, change, nullptr);
    g_object_unref(listener_);
}

Accessible Focus::element() const {
    return latest_.is(Accessible::focused) ? latest_ : Accessible();
}

void Focus::take(_AtspiEvent* event, void* self) {
    if (event->detail1 != 0) {
        static_cast<Focus*>(self)->latest_ =
            Accessible(ATSPI_ACCESSIBLE(g_object_ref(event->source)));
    }
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

} // namespace kelmar::test
