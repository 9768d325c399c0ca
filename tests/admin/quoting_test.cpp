#include "admin/quoting.hpp"
#include "system/process/shell.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelmar {
namespace {

/// Reads an AppleScript string literal back, as the language defines it.
std::string literalRead(const std::string& literal) {
    std::string text;
    for (std::size_t at = 1; at + 1 < literal.size(); ++at) {
        at += literal[at] == '\\' ? 1U : 0U;
        text += literal[at];
    }
    return text;
}

const std::vector<std::string> odd{"",           "a b",  "it's", "''",     "'\\''",
                                   "\\",         "\\\\", "\"",   "\\\"",   "$HOME `id` $(id)",
                                   "*?[a]",      "~",    "-rf",  "a\nb\t", "\xFF\xC3\xA9",
                                   "#!;&|<>(){}"};

TEST(ShellQuoted, PutsEveryWordInSingleQuotes) {
    EXPECT_EQ(shellQuoted("/bin/bash"), "'/bin/bash'");
    EXPECT_EQ(shellQuoted(""), "''");
    EXPECT_EQ(shellQuoted("it's"), "'it'\\''s'");
    EXPECT_EQ(shellQuoted("'"), "''\\'''");
}

TEST(ShellCommand, IsReadBackByBashAsTheSameWords) {
    std::vector<std::string> words{"/usr/bin/printf", "<%s>"};
    std::string expected;
    for (const std::string& word : odd) {
        words.push_back(word);
        expected += "<" + word + ">";
    }
    const Shell::Result plain = Shell::run(words[0], {words.begin() + 1, words.end()});
    EXPECT_EQ(Shell::run("/bin/bash", {"-c", shellCommand(words)}), plain);
    EXPECT_EQ(shellCommand({"/bin/bash", "/A/u.sh"}), "'/bin/bash' '/A/u.sh'");
    EXPECT_EQ(shellCommand({}), "");
}

TEST(AppleScriptLiteral, EscapesBackslashesAndQuotesOnce) {
    EXPECT_EQ(appleScriptLiteral("plain"), "\"plain\"");
    EXPECT_EQ(appleScriptLiteral("a\"b"), "\"a\\\"b\"");
    EXPECT_EQ(appleScriptLiteral("a\\b"), "\"a\\\\b\"");
    EXPECT_EQ(appleScriptLiteral("\\\""), "\"\\\\\\\"\"");
    for (const std::string& text : odd) {
        EXPECT_EQ(literalRead(appleScriptLiteral(text)), text);
    }
}

TEST(AdministratorAppleScript, IsTheWholeSource) {
    EXPECT_EQ(administratorAppleScript(shellCommand({"/bin/bash", "/A/u.sh", "--status", "/t/s"}),
                                       "Why \"so\"?"),
              "do shell script \"'/bin/bash' '/A/u.sh' '--status' '/t/s'\" with prompt \"Why "
              "\\\"so\\\"?\" "
              "with administrator privileges");
}

} // namespace
} // namespace kelmar
