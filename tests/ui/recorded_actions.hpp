#pragma once

#include "ui/window_actions.hpp"

#include <string>
#include <vector>

namespace kelmar::test {

/// What a page's controls asked for, one text each, in order.
using RecordedActions = std::vector<std::string>;

/// An action as `recordInto` records it.
inline std::string recorded(Action action) {
    return "action " + std::to_string(static_cast<int>(action));
}

/// Callbacks for a page that record every call in `calls`, which has to outlive them.
inline WindowActions recordInto(RecordedActions& calls) {
    return {[&calls](Action action) { calls.push_back(recorded(action)); },
            [&calls](bool all) { calls.emplace_back(all ? "delete all" : "delete none"); },
            [&calls](const std::string& path, bool selected) {
                calls.push_back((selected ? "select " : "leave ") + path);
            }};
}

} // namespace kelmar::test
