#include "system/property_list/xml.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kelmar {

namespace {

constexpr std::size_t containerLimit = 10'000;
constexpr std::size_t nestingLimit = 128;

/// A passage that may hold text which looks like a tag but is none.
struct Passage {
    std::string_view opening;
    std::string_view closing;
};

constexpr std::array<Passage, 2> passages{{{"<!--", "-->"}, {"<![CDATA[", "]]>"}}};
constexpr std::array<std::string_view, 2> openings{"<array", "<dict"};
constexpr std::array<std::string_view, 2> closings{"</array", "</dict"};

/// The length of the passage at the start of `text`; 0 if there is none.
std::size_t passageLength(std::string_view text) {
    for (const Passage& passage : passages) {
        if (text.starts_with(passage.opening)) {
            const std::size_t end = text.find(passage.closing, passage.opening.size());
            return end == std::string_view::npos ? text.size() : end + passage.closing.size();
        }
    }
    return 0;
}

/// Returns true if the tag at the start of `text`, which is `word` long without its ">", is empty:
/// "<dict/>". A tag with attributes may hold these characters in a quoted value and counts as open.
bool isEmptyElement(std::string_view text, std::size_t word) {
    text.remove_prefix(word);
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    return text.starts_with("/>");
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
        const auto* const opening =
            std::find_if(openings.begin(), openings.end(),
                         [rest](std::string_view word) { return rest.starts_with(word); });
        if (opening != openings.end()) {
            ++containers;
            nesting += isEmptyElement(rest, opening->size()) ? 0U : 1U;
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
