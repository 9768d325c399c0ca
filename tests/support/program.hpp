#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar::test {

/// How a program ended and what it wrote, its two streams apart.
struct ProgramEnd {
    int status = 0; ///< exit status, or minus the number of the signal that ended it
    std::string output;
    std::string error;
    bool timedOut = false; ///< killed by the test after `Program::timeout`
};

/// A program to run as a child, as a person at a terminal would start it. On purpose without any
/// code of the program under test.
struct Program {
    std::string path;
    std::vector<std::string> arguments;
    /// Set in the child's environment on top of this process's own; absent values are taken out.
    std::map<std::string, std::optional<std::string>> environment;
    std::optional<std::string> root;   ///< the child's root folder, see chroot(2) (needs root)
    std::optional<uid_t> user;         ///< whom the child runs as (needs root)
    std::function<void()> inChild;     ///< last thing before the program, in the child
    std::chrono::seconds timeout{120}; ///< the child is killed after it
    /// Called with each piece of standard output as it comes, with the time since the start.
    std::function<void(const std::string&, std::chrono::milliseconds)> onOutput;

    /// Lets another user run a copy of the program, with its script, from `place`: the build may
    /// lie in a folder that only its owner may enter.
    void runAs(uid_t other, const std::string& place);

    [[nodiscard]] ProgramEnd run() const;

    /// In a child: becomes the program, with these two descriptors as its output and error and the
    /// null device as its input. Ends with 127 where there is no such program.
    [[noreturn]] void become(int output, int error) const;
};

/// The built uninstaller with these arguments, under the test root when one is given, else without
/// the variable.
Program uninstaller(std::vector<std::string> arguments, const std::optional<std::string>& testRoot);

} // namespace kelmar::test
