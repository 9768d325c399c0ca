#pragma once

#include "tests/support/private_mounts.hpp"

#include <optional>
#include <string>

namespace kelmar::test {

/// A Mac's own command-line tools (bash 3.2, rm, find, ls and others, built for this system from
/// Apple's published sources). They are not part of the project: the environment variable
/// KELMAR_MAC_USERLAND names their folder.
class MacUserland {
public:
    /// Why they can't be used here; absent if they can.
    static std::optional<std::string> skipReason();

    /// Returns true if this run of the tests must use them: KELMAR_TESTS_WITH_MAC_TOOLS is set.
    static bool isWanted();

    /// Mounts them over this system's tools below `root`, which is empty or a folder that acts as
    /// the root folder, for this process and its children. Other tools stay this system's.
    static void install(PrivateMounts& mounts, const std::string& root);
};

} // namespace kelmar::test
