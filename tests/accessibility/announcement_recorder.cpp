#include "tests/accessibility/announcement_recorder.hpp"

#include "tests/accessibility/accessibility_bus.hpp"

#include <atspi/atspi.h>

namespace kelmar::test {

namespace {

constexpr const char* appearance = "object:state-changed:showing";

} // namespace

AnnouncementRecorder::AnnouncementRecorder()
    : listener_(atspi_event_listener_new(onEvent, this, nullptr)) {
    atspi_event_listener_register(listener_, appearance, nullptr);
}

AnnouncementRecorder::~AnnouncementRecorder() {
    atspi_event_listener_deregister(listener_, appearance, nullptr);
    g_object_unref(listener_);
}

void AnnouncementRecorder::onEvent(_AtspiEvent* event, void* self) {
    if (event->detail1 != 0) {
        const Accessible source(*event);
        const std::string role = source.role();
        if (role == "notification" || role == "alert") {
            static_cast<AnnouncementRecorder*>(self)->announcements_.push_back(role + ": " +
                                                                               source.name());
        }
    }
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

} // namespace kelmar::test
