#pragma once

#include "admin/administrator_runner.hpp"

#include <fstream>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kelmar::test {

/// Replaces the password prompt and the script behind it: does what a test says.
class ScriptedRunner : public AdministratorRunner {
public:
    /// What a run does, given the path of the status file.
    using Behaviour = std::function<void(const std::string& statusFile)>;

    explicit ScriptedRunner(Behaviour behaviour) : behaviour_(std::move(behaviour)) {}

    void run(const std::string& script, const std::vector<std::string>& arguments,
             const std::string& reason) override {
        ++runs;
        lastScript = script;
        lastArguments = arguments;
        lastReason = reason;
        behaviour_(arguments.at(1));
    }

    int runs = 0;
    std::string lastScript;
    std::vector<std::string> lastArguments;
    std::string lastReason;

private:
    Behaviour behaviour_;
};

/// Writes `text` into the status file and succeeds.
inline ScriptedRunner::Behaviour writes(const std::string& text) {
    return [text](const std::string& statusFile) {
        std::ofstream(statusFile, std::ios::app | std::ios::binary) << text;
    };
}

} // namespace kelmar::test
