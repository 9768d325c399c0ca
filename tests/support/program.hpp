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

/// How a program ended and what it wrote, with the two streams separate.
struct ProgramEnd {
    int status = 0; ///< exit status, or minus the number of the signal that ended it
    std::string output;
    std::string error;
    bool timedOut = false; ///< killed by the test after `Program::timeout`
};

/// A program to run as a child, as a person at a terminal would start it. Deliberately shares no
/// code with the program under test.
struct Program {
    std::string path;
    std::vector<std::string> arguments;
    /// Added to this process's environment; an absent value removes the variable.
    std::map<std::string, std::optional<std::string>> environment;
    std::optional<std::string> root;   ///< the child's root folder, see chroot(2) (needs root)
    std::optional<uid_t> user;         ///< the user that the child runs as (needs root)
    std::function<void()> inChild;     ///< called in the child just before exec
    std::chrono::seconds timeout{120}; ///< after this the child is killed
    /// Called with each piece of standard output as it arrives, with the time since the start.
    std::function<void(const std::string&, std::chrono::milliseconds)> onOutput;

    /// Lets another user run a copy of the program, with its script, from `place`: the build folder
    /// may be closed to other users.
    void runAs(uid_t other, const std::string& place);

    /// Lets a copy of the program run, from `place`, with another script beside it than its own.
    void runBeside(const std::string& script, const std::string& place);

    [[nodiscard]] ProgramEnd run() const;

    /// Called in a child: replaces it by the program, with these two descriptors as its output and
    /// error and the null device as its input. Exits with 127 if the program cannot be executed.
    [[noreturn]] void become(int output, int error) const;
};

/// The built uninstaller with these arguments, under the test root if one is given, else with the
/// variable unset.
Program uninstaller(std::vector<std::string> arguments, const std::optional<std::string>& testRoot);

} // namespace kelmar::test
