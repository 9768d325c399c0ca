#include "admin/askpass_linux.hpp"
#include "admin/prompt_process.hpp"

namespace kelmar::PromptProcess {

std::optional<int> run(const std::vector<std::string>& options) {
    // sudo(8) itself runs the script. Only its askpass program is this executable.
    return Askpass::isMeant(options) ? std::optional(Askpass::ask(options)) : std::nullopt;
}

} // namespace kelmar::PromptProcess
