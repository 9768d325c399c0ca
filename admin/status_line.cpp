#include "admin/status_line.hpp"

#include <algorithm>

namespace kelmar {

namespace {

std::string_view withoutLeading(std::string_view text, char character) {
    text.remove_prefix(std::min(text.find_first_not_of(character), text.size()));
    return text;
}

struct Split {
    std::string_view before;
    std::string_view after;
};

Split splitAtFirst(std::string_view text, char separator) {
    const std::size_t end = std::min(text.find(separator), text.size());
    return {text.substr(0, end), text.substr(std::min(end + 1, text.size()))};
}

} // namespace

std::optional<StatusLine> parseStatusLine(std::string_view line) {
    using Keyword = StatusLine::Keyword;
    const auto [keyword, rest] = splitAtFirst(withoutLeading(line, ' '), ' ');
    if (keyword == "DOING") {
        return StatusLine{Keyword::doing, std::string(rest), {}};
    }
    if (keyword == "OK") {
        return StatusLine{Keyword::ok, std::string(rest), {}};
    }
    if (keyword == "LOG") {
        return StatusLine{Keyword::log, std::string(rest), {}};
    }
    if (keyword == "FAIL") {
        const auto [path, reason] = splitAtFirst(withoutLeading(rest, '\t'), '\t');
        return StatusLine{Keyword::fail, std::string(path),
                          std::string(reason.empty() ? "could not be removed" : reason)};
    }
    return std::nullopt;
}

} // namespace kelmar
