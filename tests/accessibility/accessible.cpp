#include "tests/accessibility/accessible.hpp"

#include <algorithm>
#include <utility>

#include <atspi/atspi.h>

namespace kelmar::test {

namespace {

std::string takeString(char* text) {
    std::string copy(text != nullptr ? text : "");
    g_free(text);
    return copy;
}

/// A reference to one of the object's interfaces, given back at the end.
template <class Interface>
std::shared_ptr<Interface> held(Interface* object) {
    return std::shared_ptr<Interface>(object, [](Interface* each) {
        if (each != nullptr) {
            g_object_unref(each);
        }
    });
}

void collectShown(const Accessible& from, std::vector<Accessible>& list) {
    for (const Accessible& each : from.children()) {
        if (each.is(Accessible::showing)) {
            list.push_back(each);
            collectShown(each, list);
        }
    }
}

} // namespace

Accessible::Accessible(_AtspiAccessible* object) : object_(held(object)) {}

std::string Accessible::role() const {
    const std::string name =
        object_ ? takeString(atspi_accessible_get_role_name(object_.get(), nullptr)) : "";
    return name == "button" ? "push button" : name; // as at-spi2 2.56 has it
}

std::string Accessible::name() const {
    return object_ ? takeString(atspi_accessible_get_name(object_.get(), nullptr)) : "";
}

std::string Accessible::description() const {
    return object_ ? takeString(atspi_accessible_get_description(object_.get(), nullptr)) : "";
}

unsigned Accessible::states() const {
    const auto set = held(object_ ? atspi_accessible_get_state_set(object_.get()) : nullptr);
    unsigned states = 0;
    for (const auto& [state, type] : {std::pair{checked, ATSPI_STATE_CHECKED},
                                      {enabled, ATSPI_STATE_ENABLED},
                                      {focusable, ATSPI_STATE_FOCUSABLE},
                                      {focused, ATSPI_STATE_FOCUSED},
                                      {showing, ATSPI_STATE_SHOWING},
                                      {expandable, ATSPI_STATE_EXPANDABLE},
                                      {expanded, ATSPI_STATE_EXPANDED},
                                      {modal, ATSPI_STATE_MODAL}}) {
        if (set && atspi_state_set_contains(set.get(), type) != FALSE) {
            states |= state;
        }
    }
    return states;
}

Rectangle Accessible::place() const {
    const auto component =
        held(object_ ? atspi_accessible_get_component_iface(object_.get()) : nullptr);
    AtspiRect* const extents =
        component ? atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, nullptr)
                  : nullptr;
    const Rectangle place = extents != nullptr
                                ? Rectangle{extents->x, extents->y, extents->width, extents->height}
                                : Rectangle{};
    g_free(extents);
    return place;
}

std::string Accessible::key() const {
    const auto action = held(object_ ? atspi_accessible_get_action_iface(object_.get()) : nullptr);
    const int count = action ? atspi_action_get_n_actions(action.get(), nullptr) : 0;
    for (int index = 0; index < count; ++index) {
        std::string key = takeString(atspi_action_get_key_binding(action.get(), index, nullptr));
        if (!key.empty()) {
            return key;
        }
    }
    return "";
}

bool Accessible::press() const {
    const auto action = held(object_ ? atspi_accessible_get_action_iface(object_.get()) : nullptr);
    const int count = action ? atspi_action_get_n_actions(action.get(), nullptr) : 0;
    for (int index = 0; index < count; ++index) {
        const std::string name =
            takeString(atspi_action_get_action_name(action.get(), index, nullptr));
        if (name == "Press" || name == "Toggle") {
            return atspi_action_do_action(action.get(), index, nullptr) != FALSE;
        }
    }
    return false;
}

std::string Accessible::text() const {
    const auto text = held(object_ ? atspi_accessible_get_text_iface(object_.get()) : nullptr);
    return text ? takeString(atspi_text_get_text(text.get(), 0, -1, nullptr)) : "";
}

std::string Accessible::selectedText() const {
    const auto text = held(object_ ? atspi_accessible_get_text_iface(object_.get()) : nullptr);
    if (!text || atspi_text_get_n_selections(text.get(), nullptr) != 1) {
        return "";
    }
    AtspiRange* const range = atspi_text_get_selection(text.get(), 0, nullptr);
    std::string selected = range != nullptr
                               ? takeString(atspi_text_get_text(text.get(), range->start_offset,
                                                                range->end_offset, nullptr))
                               : "";
    g_free(range);
    return selected;
}

std::vector<Accessible> Accessible::children() const {
    std::vector<Accessible> list;
    const int count = object_ ? atspi_accessible_get_child_count(object_.get(), nullptr) : 0;
    list.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int index = 0; index < count; ++index) {
        list.emplace_back(atspi_accessible_get_child_at_index(object_.get(), index, nullptr));
    }
    return list;
}

std::vector<Accessible> Accessible::everything() const {
    std::vector<Accessible> list;
    collectShown(*this, list);
    return list;
}

Accessible Accessible::find(const std::string& role, const std::string& name) const {
    for (const Accessible& each : children()) {
        if (!each.is(showing)) {
            continue;
        }
        if (each.role() == role && each.name() == name) {
            return each;
        }
        if (Accessible below = each.find(role, name)) {
            return below;
        }
    }
    return {};
}

} // namespace kelmar::test
