#include "system/text/list_text.hpp"
#include "system/text/strings.hpp"

namespace kelmar {

std::string listed(const std::vector<std::string>& words) {
    if (words.size() <= 2) {
        return joined(words, " and ");
    }
    return joined({words.begin(), words.end() - 1}, ", ") + ", and " + words.back();
}

} // namespace kelmar
