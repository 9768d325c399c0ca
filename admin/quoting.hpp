#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Quoting for the command line inside the system's password prompt.
namespace kelmar {

/// `word` as the POSIX shell reads it back unchanged: in single quotes, each ' inside as '\''.
std::string shellQuoted(std::string_view word);

/// `words`, every one quoted, with a blank between.
std::string shellCommand(const std::vector<std::string>& words);

/// `text` as a string literal of AppleScript: backslashes and double quotes escaped, in double
/// quotes.
std::string appleScriptLiteral(std::string_view text);

/// The AppleScript source that runs `command` with an administrator's rights, asking with `reason`.
std::string administratorAppleScript(std::string_view command, std::string_view reason);

} // namespace kelmar
