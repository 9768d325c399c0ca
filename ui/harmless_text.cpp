#include "ui/harmless_text.hpp"

#include "system/text/utf8.hpp"

namespace kelmar {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";
constexpr unsigned char blank = 0x20;
constexpr char32_t pictures = 0x2400; ///< of the control characters, in their order

/// The third byte of U+2028 to U+202E and of U+2066 to U+2069, which share their first two with
/// other characters of the same block.
bool separatesOrTurns(std::string_view character) {
    if (character.size() != 3 || character[0] != '\xE2') {
        return false;
    }
    const auto last = static_cast<unsigned char>(character[2]);
    return (character[1] == '\x80' && last >= 0xA8 && last <= 0xAE) ||
           (character[1] == '\x81' && last >= 0xA6 && last <= 0xA9);
}

} // namespace

std::string harmlessText(std::string_view text) {
    const std::string sound = decodeUtf8(text);
    std::string harmless;
    harmless.reserve(sound.size());
    for (std::size_t at = 0; at < sound.size(); ++at) {
        const auto byte = static_cast<unsigned char>(sound[at]);
        if (byte < blank) {
            appendUtf8(harmless, pictures + byte);
        } else if (separatesOrTurns(std::string_view(sound).substr(at, 3))) {
            harmless += replacement;
            at += 2;
        } else {
            harmless += sound[at];
        }
    }
    return harmless;
}

} // namespace kelmar
