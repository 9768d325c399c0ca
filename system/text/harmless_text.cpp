#include "system/text/harmless_text.hpp"

#include "system/text/utf8.hpp"

#include <algorithm>
#include <array>

namespace kelmar {

namespace {

constexpr char32_t replacement = 0xFFFD;

struct Range {
    char32_t first;
    char32_t last;
};

/// Besides the control characters, which have pictures: the C1 controls (Unicode Standard, chapter
/// 23.1), and characters that control bidirectional order (UAX #9) or line breaks.
constexpr std::array<Range, 6> obeyed{{
    {0x80, 0x9F},     // C1: one of them begins a terminal's escape sequence
    {0x61C, 0x61C},   // Arabic letter mark
    {0x200E, 0x200F}, // left-to-right and right-to-left mark
    {0x2028, 0x202E}, // line and paragraph separator, embeddings and overrides
    {0x2066, 0x206F}, // isolates and deprecated format characters
    {0xFFF9, 0xFFFB}, // interlinear annotation
}};

char32_t harmless(char32_t character) {
    constexpr char32_t blank = 0x20;
    constexpr char32_t erase = 0x7F;
    constexpr char32_t pictures = 0x2400;
    if (character < blank) {
        return pictures + character;
    }
    if (character == erase) {
        return pictures + blank + 1;
    }
    const bool isObeyed = std::any_of(obeyed.begin(), obeyed.end(), [character](const Range& each) {
        return character >= each.first && character <= each.last;
    });
    return isObeyed ? replacement : character;
}

/// Removes the first character from `text`, which is well-formed, and returns it.
char32_t takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    char32_t character = length == 1 ? first : first & (0x7FU >> length);
    for (const char byte : text.substr(1, length - 1)) {
        character = (character << 6) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    text.remove_prefix(length);
    return character;
}

} // namespace

std::string harmlessText(std::string_view text) {
    const std::string sound = decodeUtf8(text);
    std::string result;
    result.reserve(sound.size());
    for (std::string_view rest = sound; !rest.empty();) {
        appendUtf8(result, harmless(takeCharacter(rest)));
    }
    return result;
}

} // namespace kelmar
