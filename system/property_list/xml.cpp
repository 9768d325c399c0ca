#include "system/property_list/xml.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kelmar {

namespace {

constexpr std::size_t containerLimit = 10'000;
constexpr std::size_t nestingLimit = 128;

/// What may hold text that looks like a tag and is none.
struct Passage {
    std::string_view opening;
    std::string_view closing;
};

constexpr std::array<Passage, 2> passages{{{"<!--", "-->"}, {"<![CDATA[", "]]>"}}};
constexpr std::array<std::string_view, 2> openings{"<array", "<dict"};
constexpr std::array<std::string_view, 2> closings{"</array", "</dict"};

/// The end of the passage that `text` begins with, 0 when it begins with none.
std::size_t passageLength(std::string_view text) {
    for (const Passage& passage : passages) {
        if (text.starts_with(passage.opening)) {
            const std::size_t end = text.find(passage.closing, passage.opening.size());
            return end == std::string_view::npos ? text.size() : end + passage.closing.size();
        }
    }
    return 0;
}

template <std::size_t count>
bool startsWithAny(std::string_view text, const std::array<std::string_view, count>& words) {
    return std::any_of(words.begin(), words.end(),
                       [text](std::string_view word) { return text.starts_with(word); });
}

} // namespace

bool isModestXmlPropertyList(std::string_view text) {
    if (text.find('\0') != std::string_view::npos) {
        return false;
    }
    std::size_t containers = 0;
    std::size_t nesting = 0;
    for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at)) {
        const std::string_view rest = text.substr(at);
        if (startsWithAny(rest, openings)) {
            ++containers;
            ++nesting; // "<dict/>" is counted as left open: too much is the safe side
        } else if (startsWithAny(rest, closings) && nesting > 0) {
            --nesting;
        }
        if (containers > containerLimit || nesting > nestingLimit) {
            return false;
        }
        at += std::max<std::size_t>(passageLength(rest), 1);
    }
    return true;
}

} // namespace kelmar
