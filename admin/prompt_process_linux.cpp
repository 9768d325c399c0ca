#include "admin/askpass_linux.hpp"
#include "admin/prompt_process.hpp"

namespace kelmar::PromptProcess {

std::optional<int> run(const std::vector<std::string>& options) {
    // sudo(8) is the process that runs the script; what it starts to ask for a password is this
    // one.
    return Askpass::isMeant(options) ? std::optional(Askpass::ask(options)) : std::nullopt;
}

} // namespace kelmar::PromptProcess
