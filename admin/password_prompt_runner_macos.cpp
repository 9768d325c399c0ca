#include "admin/password_prompt_runner.hpp"
#include "admin/prompt_process.hpp"
#include "system/process/processes.hpp"
#include "system/process/shell.hpp"
#include "system/text/uuid.hpp"

#include <unistd.h>

namespace kelmar {

// NSAppleScript belongs to the main thread (Apple's "Thread Safety Summary" names it). The command
// line waits on its main thread, the window must not: its main thread draws while the engine's
// waits here. So neither does it; a process that has nothing else to do does, on a main thread of
// its own.
void PasswordPromptRunner::run(const std::string& script, const std::vector<std::string>& arguments,
                               const std::string& reason) {
    const std::optional<std::string> executable = executablePath(::getpid());
    if (!executable) {
        throw AdministratorError::failed("could not prepare the password prompt");
    }
    const PromptProcess::Request request{"kelmar-uninstaller-" + randomUuid() + " ", script, reason,
                                         arguments};
    const Shell::Result result = Shell::run(*executable, PromptProcess::options(request));
    PromptProcess::checkReport(request.marker, result.output);
}

} // namespace kelmar
