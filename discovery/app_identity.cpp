#include "discovery/app_identity.hpp"

#include "discovery/identifiers.hpp"

#include <string>

namespace kelmar {

ApplicationIdentity appIdentity(const KelmarPaths& paths) {
    return {std::string(legacyBundleIdentifier),
            {paths.app(Scope::allUsers), paths.app(Scope::me)}};
}

} // namespace kelmar
