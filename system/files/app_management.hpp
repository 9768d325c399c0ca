#pragma once

#include <string>

namespace kelmar {

/// Where a person allows a program to change another maker's app, in the system's own words; empty
/// where the system asks for no such permission. macOS refuses it from version 13 on, also to root,
/// with EPERM.
std::string appManagementSettings();

} // namespace kelmar
