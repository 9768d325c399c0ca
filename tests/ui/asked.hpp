#pragma once

#include "ui/window_actions.hpp"

#include <string>
#include <vector>

namespace kelmar::test {

/// A request as `writingTo` writes it down.
inline std::string asking(Action action) {
    return "action " + std::to_string(static_cast<int>(action));
}

/// What a page's controls ask for is written down in `asked`, which has to outlive them.
inline WindowActions writingTo(std::vector<std::string>& asked) {
    return {[&asked](Action action) { asked.push_back(asking(action)); },
            [&asked](bool all) { asked.emplace_back(all ? "delete all" : "delete none"); },
            [&asked](const std::string& path, bool selected) {
                asked.push_back((selected ? "select " : "leave ") + path);
            }};
}

} // namespace kelmar::test
