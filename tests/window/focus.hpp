#pragma once

#include "tests/window/accessible.hpp"

struct _AtspiEvent;         // NOLINT(*-reserved-identifier): the library's name
struct _AtspiEventListener; // NOLINT(*-reserved-identifier): the library's name

namespace kelmar::test {

/// Follows the keyboard's focus from element to element, as a screen reader does.
class Focus {
public:
    Focus();
    Focus(const Focus&) = delete;
    Focus& operator=(const Focus&) = delete;
    ~Focus();

    /// What got it last and still has it.
    [[nodiscard]] Accessible element() const;

private:
    static void take(_AtspiEvent* event, void* self);

    Accessible latest_;
    _AtspiEventListener* listener_;
};

} // namespace kelmar::test
