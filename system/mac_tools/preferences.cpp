#include "system/mac_tools/preferences.hpp"

#include "system/process/shell.hpp"

namespace kelmar::Preferences {

void deleteDomain(std::string_view domain) {
    Shell::run("/usr/bin/defaults", {"delete", std::string(domain)});
}

} // namespace kelmar::Preferences
