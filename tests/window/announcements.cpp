#include "tests/window/announcements.hpp"

#include "tests/window/accessibility_bus.hpp"

#include <atspi/atspi.h>

namespace kelmar::test {

namespace {

constexpr const char* appearance = "object:state-changed:showing";

} // namespace

Announcements::Announcements() : listener_(atspi_event_listener_new(take, this, nullptr)) {
    atspi_event_listener_register(listener_, appearance, nullptr);
}

Announcements::~Announcements() {
    atspi_event_listener_deregister(listener_, appearance, nullptr);
    g_object_unref(listener_);
}

void Announcements::take(_AtspiEvent* event, void* self) {
    if (event->detail1 != 0) {
        const Accessible source(ATSPI_ACCESSIBLE(g_object_ref(event->source)));
        const std::string role = source.role();
        if (role == "notification" || role == "alert") {
            static_cast<Announcements*>(self)->heard_.push_back(role + ": " + source.name());
        }
    }
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

} // namespace kelmar::test
