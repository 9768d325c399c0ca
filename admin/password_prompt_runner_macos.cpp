#include "admin/password_prompt_runner.hpp"
#include "admin/prompt_process.hpp"
#include "system/process/processes.hpp"
#include "system/process/shell.hpp"
#include "system/text/uuid.hpp"

#include <unistd.h>

namespace kelmar {

// NSAppleScript is for the main thread only (Apple's "Thread Safety Summary"). Neither front end
// can lend its main thread: the command line's waits in the engine, the window's draws. So a helper
// process runs the prompt on its own. It works the reason out for itself, too.
void PasswordPromptRunner::run(const std::string& script, const std::vector<std::string>& arguments,
                               const std::string& /*reason*/) {
    const std::optional<std::string> executable = executablePath(::getpid());
    const std::optional<std::string> uuid = randomUuid();
    if (!executable || !uuid) {
        throw AdministratorError::failed("could not prepare the password prompt");
    }
    const PromptProcess::Request request{"kelmar-uninstaller-" + *uuid + " ", script, arguments};
    const Shell::Result result = Shell::run(*executable, PromptProcess::options(request));
    PromptProcess::checkReport(request.marker, result.output);
}

} // namespace kelmar
