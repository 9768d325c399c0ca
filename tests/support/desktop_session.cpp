#include "tests/support/desktop_session.hpp"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include <unistd.h>

namespace kelmar::test {

std::vector<std::string> desktopVariables() {
    constexpr std::string_view prefixes[] = {"QT_",      "XDG_",     "WAYLAND_",
                                             "DESKTOP_", "SESSION_", "LC_"};
    std::vector<std::string> names;
    for (char** each = environ; *each != nullptr; ++each) {
        const std::string_view entry(*each);
        if (std::any_of(std::begin(prefixes), std::end(prefixes),
                        [entry](std::string_view prefix) { return entry.starts_with(prefix); })) {
            names.emplace_back(entry.substr(0, entry.find('=')));
        }
    }
    return names;
}

void leaveDesktopFor(const XServer& server) {
    for (const std::string& name : desktopVariables()) {
        ::unsetenv(name.c_str());
    }
    ::setenv("QT_QPA_PLATFORM", "xcb", 1);
    ::setenv("DISPLAY", server.name().c_str(), 1);
}

} // namespace kelmar::test
