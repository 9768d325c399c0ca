#include "tests/accessibility/reading_order.hpp"

#include <algorithm>

namespace kelmar::test {

namespace {

/// Something that is to be seen, with what it holds.
struct Seen {
    Accessible::Summary summary;
    std::vector<Seen> parts;

    [[nodiscard]] Point centre() const { return summary.place.centre(); }
};

std::string described(const Accessible::Summary& seen) {
    std::string line = seen.role + ": " + seen.name;
    if ((seen.states & Accessible::checked) != 0) {
        line += " (on)";
    }
    if ((seen.states & Accessible::enabled) == 0) {
        line += " (disabled)";
    }
    return line;
}

/// Reads what is shown below `top`: a whole level at a time, since a program answers many questions
/// nearly as fast as one.
Seen seenBelow(const Accessible& top) {
    Seen root{{}, {}};
    root.summary.children = top.children();
    for (std::vector<Seen*> level{&root}; !level.empty();) {
        std::vector<Accessible> below;
        for (const Seen* const each : level) {
            const std::vector<Accessible>& children = each->summary.children;
            below.insert(below.end(), children.begin(), children.end());
        }
        const std::vector<Accessible::Summary> summaries = Accessible::summaries(below);
        auto summary = summaries.begin();
        std::vector<Seen*> next;
        for (Seen* const each : level) {
            const auto end = summary + static_cast<std::ptrdiff_t>(each->summary.children.size());
            for (; summary != end; ++summary) {
                if ((summary->states & Accessible::showing) != 0) {
                    each->parts.push_back({*summary, {}});
                }
            }
            for (Seen& part : each->parts) {
                next.push_back(&part);
            }
        }
        level = std::move(next);
    }
    return root;
}

/// Puts what stands side by side from left to right, and such lines from top to bottom.
void putInReadingOrder(std::vector<Seen>& parts) {
    std::stable_sort(parts.begin(), parts.end(), [](const Seen& one, const Seen& other) {
        return one.centre().y < other.centre().y;
    });
    constexpr int sameLine = 4;
    for (auto begin = parts.begin(); begin != parts.end();) {
        const auto end = std::find_if(begin, parts.end(), [&](const Seen& each) {
            return each.centre().y - begin->centre().y > sameLine;
        });
        std::stable_sort(begin, end, [](const Seen& one, const Seen& other) {
            return one.centre().x < other.centre().x;
        });
        begin = end;
    }
}

void read(Seen& whole, std::vector<std::string>& lines) {
    putInReadingOrder(whole.parts);
    for (Seen& each : whole.parts) {
        if (each.summary.role == "menu bar" || each.summary.role == "notification") {
            continue;
        }
        // What has no name holds the rest together, or is a picture that says nothing.
        if (!each.summary.name.empty()) {
            lines.push_back(described(each.summary));
        }
        read(each, lines);
    }
}

} // namespace

std::vector<std::string> linesInReadingOrder(const Accessible& window) {
    std::vector<std::string> lines;
    Seen whole = seenBelow(window);
    read(whole, lines);
    return lines;
}

} // namespace kelmar::test
