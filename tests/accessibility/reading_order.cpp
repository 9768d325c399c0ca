#include "tests/accessibility/reading_order.hpp"

#include <algorithm>

namespace kelmar::test {

namespace {

/// An element that is to be seen, with the answers that several questions need.
struct Seen {
    Accessible element;
    std::string role;
    unsigned states = 0;
    Point centre;
};

std::string described(const Seen& seen, const std::string& name) {
    std::string line = seen.role + ": " + name;
    if ((seen.states & Accessible::checked) != 0) {
        line += " (on)";
    }
    if ((seen.states & Accessible::enabled) == 0) {
        line += " (disabled)";
    }
    return line;
}

/// Puts what stands side by side from left to right, and such lines from top to bottom.
std::vector<Seen> inReadingOrder(const std::vector<Accessible>& elements) {
    std::vector<Seen> seen;
    for (const Accessible& each : elements) {
        if (const unsigned states = each.states(); (states & Accessible::showing) != 0) {
            seen.push_back({each, each.role(), states, {}});
        }
    }
    if (seen.size() < 2) {
        return seen;
    }
    for (Seen& each : seen) {
        each.centre = each.element.place().centre();
    }
    std::stable_sort(seen.begin(), seen.end(), [](const Seen& one, const Seen& other) {
        return one.centre.y < other.centre.y;
    });
    constexpr int sameLine = 4;
    for (auto begin = seen.begin(); begin != seen.end();) {
        const auto end = std::find_if(begin, seen.end(), [&](const Seen& each) {
            return each.centre.y - begin->centre.y > sameLine;
        });
        std::stable_sort(begin, end, [](const Seen& one, const Seen& other) {
            return one.centre.x < other.centre.x;
        });
        begin = end;
    }
    return seen;
}

void read(const Accessible& from, std::vector<std::string>& lines) {
    for (const Seen& each : inReadingOrder(from.children())) {
        if (each.role == "menu bar" || each.role == "notification") {
            continue;
        }
        // What has no name holds the rest together, or is a picture that says nothing.
        if (const std::string name = each.element.name(); !name.empty()) {
            lines.push_back(described(each, name));
        }
        read(each.element, lines);
    }
}

} // namespace

std::vector<std::string> linesInReadingOrder(const Accessible& window) {
    std::vector<std::string> lines;
    read(window, lines);
    return lines;
}

} // namespace kelmar::test
