#include "admin/askpass_linux.hpp"
#include "admin/password_prompt_runner.hpp"
#include "system/process/shell.hpp"
#include "system/text/strings.hpp"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include <unistd.h>

namespace kelmar {

namespace {

constexpr const char* sudo = "/usr/bin/sudo";

/// The first line that the command under sudo prints, to both of its streams. Only root's command
/// writes to standard output, so the line there proves that it ran. On standard error it separates
/// sudo's messages from the script's.
constexpr const char* started = "kelmar-uninstaller: root's command has started";

/// sudo(8): the prompt has escapes that begin with a percent sign.
std::string promptText(const std::string& reason) {
    std::string text;
    for (const char character : reason) {
        text.append(character == '%' ? 2 : 1, character);
    }
    return text;
}

/// The command line for env(1). The text that the shell parses is fixed; everything else is an
/// argument.
std::vector<std::string> command(const std::string& askpass, const std::string& reason,
                                 const std::string& script,
                                 const std::vector<std::string>& arguments) {
    std::vector<std::string> all =
        askpass.empty() ? std::vector<std::string>{} : Askpass::variables(askpass);
    // -k: neither use a password cached by an earlier sudo, nor cache this one.
    all.insert(all.end(),
               {sudo, "-k", "-A", "-p", promptText(reason), "--", "/bin/bash", "-p", "-c",
                "echo \"$0\"; echo \"$0\" >&2; exec /bin/bash -p -- \"$@\"", started, script});
    all.insert(all.end(), arguments.begin(), arguments.end());
    return all;
}

bool hasStarted(const std::string& output) {
    const std::vector<std::string> lines = nonEmptyLines(output);
    return std::find(lines.begin(), lines.end(), started) != lines.end();
}

/// The script's own error messages.
std::string complaint(const Shell::SeparateResult& result) {
    const std::size_t at = result.error.rfind(started);
    const std::string words =
        trimmed(at == std::string::npos ? result.error
                                        : result.error.substr(at + std::string(started).size()));
    return words.empty() ? "error " + std::to_string(result.status) : words;
}

} // namespace

void PasswordPromptRunner::run(const std::string& script, const std::vector<std::string>& arguments,
                               const std::string& reason) {
    if (::access(sudo, X_OK) != 0) {
        throw AdministratorError::failed(std::string(sudo) + ": " +
                                         std::generic_category().message(errno));
    }
    const std::string askpass = Askpass::program();
    const Shell::SeparateResult result =
        Shell::runSeparately("/usr/bin/env", command(askpass, reason, script, arguments));
    if (hasStarted(result.output)) {
        if (result.status != 0) {
            throw AdministratorError::failed(complaint(result));
        }
        return;
    }
    const Askpass::Said said = Askpass::understood(result.error);
    const bool couldAsk = ::access(askpass.c_str(), X_OK) == 0;
    if (said.asked || !couldAsk || said.words.empty()) {
        throw AdministratorError::cancelled(joined(said.words, "\n"));
    }
    throw AdministratorError::failed(joined(said.words, " "));
}

} // namespace kelmar
