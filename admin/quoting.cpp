#include "admin/quoting.hpp"

namespace kelmar {

std::string shellQuoted(std::string_view word) {
    std::string quoted = "'";
    for (const char character : word) {
        if (character == '\'') {
            quoted += "'\\''";
        } else {
            quoted += character;
        }
    }
    return quoted + "'";
}

std::string shellCommand(const std::vector<std::string>& words) {
    std::string command;
    for (const std::string& word : words) {
        command += command.empty() ? "" : " ";
        command += shellQuoted(word);
    }
    return command;
}

std::string appleScriptLiteral(std::string_view text) {
    std::string literal = "\"";
    for (const char character : text) {
        if (character == '\\' || character == '"') {
            literal += '\\';
        }
        literal += character;
    }
    return literal + "\"";
}

std::string administratorAppleScript(std::string_view command, std::string_view reason) {
    return "do shell script " + appleScriptLiteral(command) + " with prompt " +
           appleScriptLiteral(reason) + " with administrator privileges";
}

} // namespace kelmar
