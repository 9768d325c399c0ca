#pragma once

#include "admin/administrator_runner.hpp"

#include <optional>
#include <string>
#include <vector>

/// Some systems show the prompt on a process's main thread only. There this program starts itself
/// once more as a helper that does nothing else; these functions encode the request and the answer.
/// Anybody can start the helper, so a request holds as little as possible: the helper words the
/// prompt's reason itself, from arguments that it has checked.
namespace kelmar::PromptProcess {

/// What the helper is to ask for.
struct Request {
    std::string marker; ///< at both ends of the answer, since frameworks print to the same stream
    std::string script;
    std::vector<std::string> arguments; ///< of the script

    friend bool operator==(const Request&, const Request&) = default;
};

/// Encodes a request as this program's options, and decodes it; absent for any other options.
std::vector<std::string> options(const Request& request);
std::optional<Request> request(const std::vector<std::string>& options);

/// What the helper prints: success (absent), or the error.
std::string report(const std::string& marker, const std::optional<AdministratorError>& error);

/// Finds the report in everything that the helper printed, and throws the error in it. Throws
/// `failed` if there is no complete report, as when the helper ended early.
void checkReport(const std::string& marker, const std::string& output);

/// If `options` are a request, and this system needs the helper, does what they ask and returns the
/// process's exit status; otherwise does nothing and returns absent. A request that this program
/// would not make fails. Call it on the main thread, before anything else.
std::optional<int> run(const std::vector<std::string>& options);

} // namespace kelmar::PromptProcess
