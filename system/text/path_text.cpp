#include "system/text/path_text.hpp"

#include <algorithm>

namespace kelmar {

std::string standardised(std::string_view path) {
    std::string result;
    result.reserve(path.size());
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        const std::string_view component = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (component == "..") {
            result.resize(result.empty() ? 0 : result.rfind('/'));
        } else if (!component.empty() && component != ".") {
            result.push_back('/');
            result.append(component);
        }
    }
    return result.empty() ? "/" : result;
}

} // namespace kelmar
