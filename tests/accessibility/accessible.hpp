#pragma once

#include "tests/accessibility/bus_call.hpp"
#include "tests/screen/geometry.hpp"

#include <string>
#include <vector>

struct _AtspiEvent; // NOLINT(*-reserved-identifier): the name that the library gave it

namespace kelmar::test {

/// Something that a program shows to screen readers, in the words of AT-SPI. Every question goes to
/// the program; what is no longer there has no name, no role and no states.
class Accessible {
public:
    enum State : unsigned {
        checked = 1U << 0U,
        enabled = 1U << 1U,
        focusable = 1U << 2U,
        focused = 1U << 3U,
        showing = 1U << 4U,
        expandable = 1U << 5U,
        expanded = 1U << 6U,
        modal = 1U << 7U,
    };

    /// The answers to what is asked most.
    struct Summary {
        std::string role;
        std::string name;
        unsigned states = 0;
        Rectangle place;
        std::vector<Accessible> children;
    };

    Accessible() = default;

    explicit Accessible(BusObject object) : object_(std::move(object)) {}

    /// What an event is about.
    explicit Accessible(const _AtspiEvent& event);

    explicit operator bool() const { return !object_.path.empty(); }

    [[nodiscard]] const BusObject& object() const { return object_; }

    [[nodiscard]] std::string role() const;
    [[nodiscard]] std::string name() const;
    [[nodiscard]] std::string description() const;

    /// The states that hold, as bits, and whether one does.
    [[nodiscard]] unsigned states() const;

    [[nodiscard]] bool is(State state) const { return (states() & state) != 0; }

    /// Where it is on the screen.
    [[nodiscard]] Rectangle place() const;

    /// The key of its first action that has one, as in "Ctrl+Q".
    [[nodiscard]] std::string key() const;

    /// Does what a press on it does; whether the program says that it did.
    // NOLINTNEXTLINE(modernize-use-nodiscard): a person does not look either
    bool press() const;

    /// Its text, and the part of it that is selected, where it has any.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::string selectedText() const;

    [[nodiscard]] std::vector<Accessible> children() const;

    /// Asks all `elements` at once.
    static std::vector<Summary> summaries(const std::vector<Accessible>& elements);

    /// Everything below it, each level after the one above, without what is hidden on purpose.
    [[nodiscard]] std::vector<Accessible> everything() const;

    /// The first of them with this role and name.
    [[nodiscard]] Accessible find(const std::string& role, const std::string& name) const;

private:
    BusObject object_;
};

} // namespace kelmar::test
