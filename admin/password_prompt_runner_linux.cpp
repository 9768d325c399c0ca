#include "admin/password_prompt_runner.hpp"
#include "system/process/shell.hpp"
#include "system/text/strings.hpp"
#include "system/text/uuid.hpp"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include <unistd.h>

namespace kelmar {

namespace {

constexpr const char* sudo = "/usr/bin/sudo";

/// The usual programs that ask for a password in a window, best known first.
constexpr std::array<const char*, 6> askpassPrograms{
    "/usr/bin/ssh-askpass",
    "/usr/bin/ksshaskpass",
    "/usr/libexec/seahorse/ssh-askpass",
    "/usr/bin/lxqt-openssh-askpass",
    "/usr/lib/ssh/x11-ssh-askpass",
    "/usr/bin/x11-ssh-askpass",
};

/// sudo(8): -A takes the program from SUDO_ASKPASS. Empty when there is none; sudo then can't ask.
std::string askpassProgram() {
    const char* const chosen = std::getenv("SUDO_ASKPASS");
    if (chosen != nullptr && *chosen != '\0') {
        return chosen;
    }
    for (const char* const program : askpassPrograms) {
        if (::access(program, X_OK) == 0) {
            return program;
        }
    }
    return "";
}

/// sudo(8): the prompt has escapes that begin with a percent sign.
std::string promptText(const std::string& reason) {
    std::string text;
    for (const char character : reason) {
        text.append(character == '%' ? 2 : 1, character);
    }
    return text;
}

/// What is printed first of all by the command that sudo runs. It can't be guessed, so neither sudo
/// nor the askpass program prints it by accident.
std::string newMarker() {
    return "kelmar-uninstaller-started-" + randomUuid();
}

} // namespace

void PasswordPromptRunner::run(const std::string& script, const std::vector<std::string>& arguments,
                               const std::string& reason) {
    if (::access(sudo, X_OK) != 0) {
        throw AdministratorError::failed(std::string(sudo) + ": " +
                                         std::generic_category().message(errno));
    }
    const std::string marker = newMarker();
    // The words of the command line that is given to a shell are fixed; everything else is an
    // argument.
    std::vector<std::string> all{"SUDO_ASKPASS=" + askpassProgram(),
                                 sudo,
                                 "-A",
                                 "-p",
                                 promptText(reason),
                                 "--",
                                 "/usr/bin/env",
                                 "-i", // nothing of the user's environment decides what root runs
                                 "/bin/bash",
                                 "-p",
                                 "-c",
                                 "printf '%s\\n' \"$0\"; exec /bin/bash -p \"$@\"",
                                 marker,
                                 script};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const Shell::Result result = Shell::run("/usr/bin/env", all);

    const std::size_t started = result.output.find(marker);
    if (started == std::string::npos) {
        throw AdministratorError::cancelled();
    }
    if (result.status != 0) {
        throw AdministratorError::failed(trimmed(result.output.substr(started + marker.size())));
    }
}

} // namespace kelmar
