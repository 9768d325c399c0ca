#pragma once

#include "admin/administrator_runner.hpp"

#include <optional>
#include <string>
#include <vector>

/// Where the system's prompt may be asked for on a process's main thread only, this program starts
/// itself once more, and that process does nothing else. This is how it is told what to ask, and
/// how it answers. Anybody can start it, so a request says as little as possible: the reason that
/// the prompt shows is the process's own, made from arguments that it has checked.
namespace kelmar::PromptProcess {

/// What the process is to ask for.
struct Request {
    std::string marker; ///< stands at both ends of the answer; the frameworks print things too
    std::string script;
    std::vector<std::string> arguments; ///< of the script

    friend bool operator==(const Request&, const Request&) = default;
};

/// The options to start this program with, and back; absent for any other options.
std::vector<std::string> options(const Request& request);
std::optional<Request> request(const std::vector<std::string>& options);

/// What the process prints: that the script has done its work (absent), or what came instead.
std::string report(const std::string& marker, const std::optional<AdministratorError>& error);

/// Reads the report out of all that the process printed, and throws the error in it. Without a
/// whole report it throws `failed`: the process ended before it could make one.
void checkReport(const std::string& marker, const std::string& output);

/// Does what `options` ask for and answers the process's exit status, when they are a request on a
/// system that needs it; else absent, and nothing has been done. A request that this program does
/// not make is answered with a failure. Called on the main thread, before anything else.
std::optional<int> run(const std::vector<std::string>& options);

} // namespace kelmar::PromptProcess
