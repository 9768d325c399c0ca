#pragma once

#include <string>

namespace kelmar {

/// Where in the system's settings a person allows a program to change another maker's app, as the
/// system words it; empty if the system needs no such permission. From version 13 on, macOS denies
/// it with EPERM, also to root.
std::string appManagementSettings();

} // namespace kelmar
