#pragma once

#include "tests/support/private_mounts.hpp"

#include <optional>
#include <string>

namespace kelmar::test {

/// A Mac's own command-line tools (bash 3.2, rm, find, ls and others, built for this system from
/// Apple's published sources), which a stranger has to bring: the environment variable
/// KELMAR_MAC_USERLAND names their folder.
class MacUserland {
public:
    /// Why they can't be used here, if they can't.
    static std::optional<std::string> skipReason();

    /// Whether this run of the tests is meant to be with them: KELMAR_TESTS_WITH_MAC_TOOLS is set.
    static bool isWanted();

    /// Puts them at the places of this system's below `root`, which is empty or a folder that
    /// stands for the root folder, for this process and its children. Other tools stay this
    /// system's.
    static void install(PrivateMounts& mounts, const std::string& root);
};

} // namespace kelmar::test
