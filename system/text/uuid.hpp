#pragma once

#include <string>

namespace kelmar {

/// A fresh random UUID (version 4) in its canonical form of 36 characters, upper case.
std::string randomUuid();

} // namespace kelmar
