#include "system/files/app_management.hpp"

namespace kelmar {

std::string appManagementSettings() {
    return {};
}

} // namespace kelmar
