#pragma once

#include <string>
#include <vector>

/// How sudo(8) asks for a password in a window: through a program that SUDO_ASKPASS names, which
/// prints the answer. This program stands in between, so that it is known whether anybody was
/// asked.
namespace kelmar::Askpass {

/// The program that asks: the one that the user's SUDO_ASKPASS names, else the first of the usual
/// ones that is installed. Empty when there is none.
std::string program();

/// Variables for sudo's environment, "NAME=value", with which it asks through this program and
/// speaks English. `program` is not empty; absent variables when this executable can't be named.
std::vector<std::string> variables(const std::string& program);

/// Whether this process was started by sudo for `options`, in such an environment, to ask.
bool isMeant(const std::vector<std::string>& options);

/// Says on standard error that somebody is asked, and becomes the program that asks. Returns an
/// exit status when that can't be started.
int ask(const std::vector<std::string>& options);

/// What sudo and those that it started wrote to standard error.
struct Said {
    bool asked = false;             ///< somebody was asked for a password
    std::vector<std::string> words; ///< without the lines that only say that none was given
};

Said understood(const std::string& errors);

} // namespace kelmar::Askpass
