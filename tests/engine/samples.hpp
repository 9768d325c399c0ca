#pragma once

#include "discovery/inventory.hpp"

namespace kelmar::test {

/// An installation of which there is an app and nothing else.
inline Installation installed(Scope scope, bool needsAdministrator = false) {
    Installation one;
    one.scope = scope;
    one.app = "/Kelmar.app";
    one.needsAdministrator = needsAdministrator;
    return one;
}

} // namespace kelmar::test
