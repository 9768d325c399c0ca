#pragma once

#include "admin/administrator_runner.hpp"

namespace kelmar {

/// Runs the script as the current user, without a prompt: for test roots. The only error is
/// `failed`, with everything that the script printed.
class CurrentUserRunner : public AdministratorRunner {
public:
    void run(const std::string& script, const std::vector<std::string>& arguments,
             const std::string& reason) override;
};

} // namespace kelmar
