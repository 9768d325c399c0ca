#include "admin/quoting.hpp"
#include "system/process/shell.hpp"
#include "system/text/utf8.hpp"
#include "tests/fuzz/require.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

using kelmar::fuzz::require;

namespace {

/// Reads an AppleScript string literal back; false when it ends early or late.
bool readLiteral(std::string_view literal, std::string& text) {
    if (literal.size() < 2 || literal.front() != '"' || literal.back() != '"') {
        return false;
    }
    literal = literal.substr(1, literal.size() - 2);
    for (std::size_t at = 0; at < literal.size(); ++at) {
        if (literal[at] == '"' || (literal[at] == '\\' && ++at == literal.size())) {
            return false;
        }
        text.push_back(literal[at]);
    }
    return true;
}

} // namespace

/// The input is a list of words with null characters between. A real bash reads the quoted words
/// back as they were, and a reader of literals the literal.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    std::string text;
    require(readLiteral(kelmar::appleScriptLiteral(input), text) && text == input);

    std::vector<std::string> words{"/usr/bin/printf", "%s\\0", "first"};
    for (std::size_t at = 0; at < input.size();) {
        const std::size_t end = std::min(input.find('\0', at), input.size());
        words.emplace_back(input.substr(at, end - at));
        at = end + 1;
    }
    std::string expected;
    for (std::size_t word = 2; word < words.size(); ++word) {
        expected += words[word] + '\0';
    }
    const kelmar::Shell::Result result =
        kelmar::Shell::run("/bin/bash", {"-c", kelmar::shellCommand(words)});
    require(result.status == 0 && result.output == kelmar::decodeUtf8(expected));
    return 0;
}
