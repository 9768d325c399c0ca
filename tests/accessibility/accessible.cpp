#include "tests/accessibility/accessible.hpp"

#include <functional>
#include <utility>

#include <atspi/atspi.h>

namespace kelmar::test {

namespace {

// https://gitlab.gnome.org/GNOME/at-spi2-core/-/tree/main/xml
constexpr const char* accessibleInterface = "org.a11y.atspi.Accessible";
constexpr const char* actionInterface = "org.a11y.atspi.Action";
constexpr const char* componentInterface = "org.a11y.atspi.Component";
constexpr const char* textInterface = "org.a11y.atspi.Text";

std::string roleIn(const BusReply& reply) {
    if (reply.numbers.empty()) {
        return "";
    }
    char* const text = atspi_role_get_name(static_cast<AtspiRole>(reply.number()));
    const std::string name(text != nullptr ? text : "");
    g_free(text);
    return name == "button" ? "push button" : name; // as at-spi2 2.56 has it
}

unsigned statesIn(const BusReply& reply) {
    constexpr std::size_t wordBits = 32;
    unsigned states = 0;
    for (const auto& [state, type] : {std::pair{Accessible::checked, ATSPI_STATE_CHECKED},
                                      {Accessible::enabled, ATSPI_STATE_ENABLED},
                                      {Accessible::focusable, ATSPI_STATE_FOCUSABLE},
                                      {Accessible::focused, ATSPI_STATE_FOCUSED},
                                      {Accessible::showing, ATSPI_STATE_SHOWING},
                                      {Accessible::expandable, ATSPI_STATE_EXPANDABLE},
                                      {Accessible::expanded, ATSPI_STATE_EXPANDED},
                                      {Accessible::modal, ATSPI_STATE_MODAL}}) {
        const auto bit = static_cast<std::size_t>(type);
        if (bit / wordBits < reply.numbers.size() &&
            ((reply.numbers[bit / wordBits] >> (bit % wordBits)) & 1) != 0) {
            states |= state;
        }
    }
    return states;
}

Rectangle placeIn(const BusReply& reply) {
    if (reply.numbers.size() != 4) {
        return {};
    }
    const auto at = [&reply](std::size_t index) { return static_cast<int>(reply.numbers[index]); };
    return {at(0), at(1), at(2), at(3)};
}

std::vector<Accessible> childrenIn(const BusReply& reply) {
    std::vector<Accessible> children;
    for (std::size_t index = 0; index + 1 < reply.texts.size(); index += 2) {
        children.emplace_back(BusObject{reply.texts[index], reply.texts[index + 1]});
    }
    return children;
}

BusCall askForRole(const BusObject& object) {
    return {object, accessibleInterface, "GetRole"};
}

BusCall askForName(const BusObject& object) {
    return BusCall::property(object, accessibleInterface, "Name");
}

BusCall askForStates(const BusObject& object) {
    return {object, accessibleInterface, "GetState"};
}

BusCall askForPlace(const BusObject& object) {
    return {object, componentInterface, "GetExtents", {std::uint32_t{ATSPI_COORD_TYPE_SCREEN}}};
}

BusCall askForChildren(const BusObject& object) {
    return {object, accessibleInterface, "GetChildren"};
}

std::int32_t actionsOf(const BusObject& object) {
    return static_cast<std::int32_t>(
        BusCall::property(object, actionInterface, "NActions").reply().number());
}

/// Calls `visit` with each that is showing below `top`, level by level, until it returns true.
void visitShown(const Accessible& top,
                const std::function<bool(const Accessible&, const Accessible::Summary&)>& visit) {
    std::vector<Accessible> level = top.children();
    while (!level.empty()) {
        const std::vector<Accessible::Summary> summaries = Accessible::summaries(level);
        std::vector<Accessible> next;
        for (std::size_t index = 0; index < level.size(); ++index) {
            const Accessible::Summary& summary = summaries[index];
            if ((summary.states & Accessible::showing) == 0) {
                continue;
            }
            if (visit(level[index], summary)) {
                return;
            }
            next.insert(next.end(), summary.children.begin(), summary.children.end());
        }
        level = std::move(next);
    }
}

} // namespace

Accessible::Accessible(const _AtspiEvent& event) {
    const AtspiObject* const source = ATSPI_OBJECT(event.source);
    object_ = {source->app->bus_name, source->path};
}

std::string Accessible::role() const {
    return roleIn(askForRole(object_).reply());
}

std::string Accessible::name() const {
    return askForName(object_).reply().text();
}

std::string Accessible::description() const {
    return BusCall::property(object_, accessibleInterface, "Description").reply().text();
}

unsigned Accessible::states() const {
    return statesIn(askForStates(object_).reply());
}

Rectangle Accessible::place() const {
    return placeIn(askForPlace(object_).reply());
}

std::string Accessible::key() const {
    const std::int32_t count = actionsOf(object_);
    for (std::int32_t index = 0; index < count; ++index) {
        std::string key =
            BusCall(object_, actionInterface, "GetKeyBinding", {index}).reply().text();
        if (!key.empty()) {
            return key;
        }
    }
    return "";
}

bool Accessible::press() const {
    const std::int32_t count = actionsOf(object_);
    for (std::int32_t index = 0; index < count; ++index) {
        const std::string name =
            BusCall(object_, actionInterface, "GetName", {index}).reply().text();
        if (name == "Press" || name == "Toggle") {
            return BusCall(object_, actionInterface, "DoAction", {index}).reply().number() != 0;
        }
    }
    return false;
}

std::string Accessible::text() const {
    return BusCall(object_, textInterface, "GetText", {0, -1}).reply().text();
}

std::string Accessible::selectedText() const {
    if (BusCall(object_, textInterface, "GetNSelections").reply().number() != 1) {
        return "";
    }
    const BusReply range = BusCall(object_, textInterface, "GetSelection", {0}).reply();
    if (range.numbers.size() != 2) {
        return "";
    }
    return BusCall(object_, textInterface, "GetText",
                   {static_cast<std::int32_t>(range.numbers[0]),
                    static_cast<std::int32_t>(range.numbers[1])})
        .reply()
        .text();
}

std::vector<Accessible> Accessible::children() const {
    return childrenIn(askForChildren(object_).reply());
}

std::vector<Accessible::Summary> Accessible::summaries(const std::vector<Accessible>& elements) {
    std::vector<BusCall> calls;
    for (const Accessible& each : elements) {
        calls.insert(calls.end(), {askForRole(each.object_), askForName(each.object_),
                                   askForStates(each.object_), askForPlace(each.object_),
                                   askForChildren(each.object_)});
    }
    std::vector<Summary> summaries;
    for (auto call = calls.begin(); call != calls.end();) {
        Summary summary;
        summary.role = roleIn((call++)->reply());
        summary.name = (call++)->reply().text();
        summary.states = statesIn((call++)->reply());
        summary.place = placeIn((call++)->reply());
        summary.children = childrenIn((call++)->reply());
        summaries.push_back(std::move(summary));
    }
    return summaries;
}

std::vector<Accessible> Accessible::everything() const {
    std::vector<Accessible> list;
    visitShown(*this, [&list](const Accessible& each, const Summary&) {
        list.push_back(each);
        return false;
    });
    return list;
}

Accessible Accessible::find(const std::string& role, const std::string& name) const {
    Accessible found;
    visitShown(*this, [&](const Accessible& each, const Summary& summary) {
        if (summary.role != role || summary.name != name) {
            return false;
        }
        found = each;
        return true;
    });
    return found;
}

} // namespace kelmar::test
