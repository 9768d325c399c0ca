#include "admin/askpass_linux.hpp"

#include "system/process/processes.hpp"
#include "system/process/standard_streams.hpp"
#include "system/text/strings.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <system_error>

#include <unistd.h>

namespace kelmar::Askpass {

namespace {

/// In order of preference.
constexpr std::array<const char*, 6> usualPrograms{
    "/usr/bin/ssh-askpass",
    "/usr/bin/ksshaskpass",
    "/usr/libexec/seahorse/ssh-askpass",
    "/usr/bin/lxqt-openssh-askpass",
    "/usr/lib/ssh/x11-ssh-askpass",
    "/usr/bin/x11-ssh-askpass",
};

constexpr const char* behind = "KELMAR_UNINSTALLER_ASKPASS"; ///< names the program that asks
constexpr std::string_view askedLine = "kelmar-uninstaller: a password is asked for";

/// Endings of the lines, or whole lines, that sudo prints when a password was wrong or missing.
constexpr std::array<std::string_view, 5> refusals{
    "no password was provided",    "a password is required", "incorrect password attempt",
    "incorrect password attempts", "Sorry, try again.",
};

bool isRefusal(const std::string& line) {
    return std::any_of(refusals.begin(), refusals.end(),
                       [&line](std::string_view each) { return line.ends_with(each); });
}

} // namespace

std::string program() {
    const char* const chosen = std::getenv("SUDO_ASKPASS");
    if (chosen != nullptr && *chosen != '\0') {
        return chosen;
    }
    const auto* const found =
        std::find_if(usualPrograms.begin(), usualPrograms.end(),
                     [](const char* each) { return ::access(each, X_OK) == 0; });
    return found == usualPrograms.end() ? "" : *found;
}

std::vector<std::string> variables(const std::string& program) {
    const std::optional<std::string> own = executablePath(::getpid());
    if (!own) {
        return {};
    }
    return {"SUDO_ASKPASS=" + *own, std::string(behind) + "=" + program, "LC_ALL=C"};
}

bool isMeant(const std::vector<std::string>& options) {
    // sudo(8): the one argument is the prompt.
    return options.size() == 1 && std::getenv(behind) != nullptr;
}

int ask(const std::vector<std::string>& options) {
    const char* const named = std::getenv(behind);
    const std::string program = named == nullptr ? "" : named;
    if (::access(program.c_str(), X_OK) == 0) {
        printErrorLine(askedLine);
        ::execl(program.c_str(), program.c_str(), options.front().c_str(), nullptr);
    }
    printErrorLine(program + ": " + std::generic_category().message(errno));
    return EXIT_FAILURE;
}

Said understood(const std::string& errors) {
    Said said;
    for (const std::string& line : nonEmptyLines(errors)) {
        if (line == askedLine) {
            said.asked = true;
        } else if (!isRefusal(line)) {
            said.words.push_back(line);
        }
    }
    return said;
}

} // namespace kelmar::Askpass
