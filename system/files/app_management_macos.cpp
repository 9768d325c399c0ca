#include "system/files/app_management.hpp"

namespace kelmar {

std::string appManagementSettings() {
    return "System Settings > Privacy & Security > App Management";
}

} // namespace kelmar
