#pragma once

#include <string>
#include <vector>

struct _AtspiEvent;         // NOLINT(*-reserved-identifier): the library's name
struct _AtspiEventListener; // NOLINT(*-reserved-identifier): the library's name

namespace kelmar::test {

/// What screen readers are told to say at once, whatever they are reading: the names of the
/// notifications and alerts that programs have shown since the object was made.
class Announcements {
public:
    Announcements();
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;
    ~Announcements();

    /// "notification: Text", in the order in which they came.
    [[nodiscard]] const std::vector<std::string>& heard() const { return heard_; }

private:
    static void take(_AtspiEvent* event, void* self);

    std::vector<std::string> heard_;
    _AtspiEventListener* listener_;
};

} // namespace kelmar::test
