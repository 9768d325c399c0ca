#include "admin/prompt_process.hpp"

namespace kelmar::PromptProcess {

std::optional<int> run(const std::vector<std::string>& /*options*/) {
    return std::nullopt; // sudo is a process of its own
}

} // namespace kelmar::PromptProcess
