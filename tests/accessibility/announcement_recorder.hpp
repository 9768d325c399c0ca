#pragma once

#include <string>
#include <vector>

struct _AtspiEvent;         // NOLINT(*-reserved-identifier): the library's name
struct _AtspiEventListener; // NOLINT(*-reserved-identifier): the library's name

namespace kelmar::test {

/// Records what screen readers are told to say at once, whatever they are reading: the names of the
/// notifications and alerts that programs have shown since the object was made.
class AnnouncementRecorder {
public:
    AnnouncementRecorder();
    AnnouncementRecorder(const AnnouncementRecorder&) = delete;
    AnnouncementRecorder& operator=(const AnnouncementRecorder&) = delete;
    ~AnnouncementRecorder();

    /// "notification: Text", in the order in which they came.
    [[nodiscard]] const std::vector<std::string>& announcements() const { return announcements_; }

private:
    static void onEvent(_AtspiEvent* event, void* self);

    std::vector<std::string> announcements_;
    _AtspiEventListener* listener_;
};

} // namespace kelmar::test
