#pragma once

#include "admin/administrator_runner.hpp"

namespace kelmar {

/// Runs the script as root behind the system's own password prompt. A prompt that was refused,
/// dismissed or could not be shown is `cancelled`, and then nothing ran; everything else that goes
/// wrong is `failed`.
class PasswordPromptRunner : public AdministratorRunner {
public:
    void run(const std::string& script, const std::vector<std::string>& arguments,
             const std::string& reason) override;
};

} // namespace kelmar
