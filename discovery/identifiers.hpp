#pragma once

#include <string_view>

/// The product's reverse-DNS names, in one place.
namespace kelmar {

/// The bundle identifier that the app still carries from its former edition. It finds the running
/// app and names its settings files and its privacy permissions.
inline constexpr std::string_view legacyBundleIdentifier = "com.quobrintal.app";

/// The labels of the two launch agents; an agent's file is its label followed by ".plist".
inline constexpr std::string_view apiAgentLabel = "com.kelmar.api";
inline constexpr std::string_view workerAgentLabel = "com.kelmar.worker";

/// The two package receipts.
inline constexpr std::string_view appPackageIdentifier = "com.kelmar.pkg.app";
inline constexpr std::string_view backendIdentifier = "com.kelmar.pkg.backend";

} // namespace kelmar
