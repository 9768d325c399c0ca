#pragma once

#include <string>
#include <vector>

/// How sudo(8) asks for a password in a window: it runs the program that SUDO_ASKPASS names, which
/// prints the answer. This program puts itself in between to learn whether anybody was asked.
namespace kelmar::Askpass {

/// The program that shows the prompt: the one that the user's SUDO_ASKPASS names, else the first of
/// the usual ones that is installed. Empty if there is none.
std::string program();

/// Variables for sudo's environment, "NAME=value", which make sudo ask through this program and
/// print its messages in English. `program` must not be empty. Absent if the path of this
/// executable is unknown.
std::vector<std::string> variables(const std::string& program);

/// Returns true if sudo started this process, with `options` and such an environment, to ask.
bool isMeant(const std::vector<std::string>& options);

/// Reports on standard error that somebody is being asked, then replaces this process with the
/// program that asks. Returns an exit status if that program can't be started.
int ask(const std::vector<std::string>& options);

/// What sudo and its children wrote to standard error.
struct Said {
    bool asked = false;             ///< somebody was asked for a password
    std::vector<std::string> words; ///< without the lines that only say that none was given
};

Said understood(const std::string& errors);

} // namespace kelmar::Askpass
