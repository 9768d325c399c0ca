#include "system/process/environment.hpp"

#include "system/process/spawn_setup.hpp"

#include <cstdlib>
#include <string>
#include <string_view>

namespace kelmar {

void clearEnvironment() {
    char** const variables = environmentForChildren();
    // execve(2) accepts entries without a name, which can't be unset by name: they are cut off.
    while (variables != nullptr && *variables != nullptr) {
        const std::string_view first = *variables;
        const std::string name(first.substr(0, first.find('=')));
        if (name.empty() || name.size() == first.size() || ::unsetenv(name.c_str()) != 0) {
            *variables = nullptr;
        }
    }
}

} // namespace kelmar
