#include "system/text/strings.hpp"

#include <algorithm>

namespace kelmar {

std::string joined(const std::vector<std::string>& words, std::string_view separator) {
    std::string text;
    for (const std::string& word : words) {
        text.append(&word == &words.front() ? "" : separator).append(word);
    }
    return text;
}

std::string trimmed(std::string_view text, std::string_view blank) {
    text.remove_prefix(std::min(text.find_first_not_of(blank), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(blank) + 1));
    return std::string(text);
}

std::vector<std::string> nonEmptyLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (end != 0) {
            lines.emplace_back(text.substr(0, end));
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

} // namespace kelmar
