#pragma once

#include "tests/accessibility/accessible.hpp"

struct _AtspiEvent;         // NOLINT(*-reserved-identifier): the library's name
struct _AtspiEventListener; // NOLINT(*-reserved-identifier): the library's name

namespace kelmar::test {

/// Follows the keyboard's focus from element to element, as a screen reader does.
class FocusTracker {
public:
    FocusTracker();
    FocusTracker(const FocusTracker&) = delete;
    FocusTracker& operator=(const FocusTracker&) = delete;
    ~FocusTracker();

    /// What got it last and still has it.
    [[nodiscard]] Accessible element() const;

private:
    static void onEvent(_AtspiEvent* event, void* self);

    Accessible latest_;
    _AtspiEventListener* listener_;
};

} // namespace kelmar::test
