#include "ui/drawn_text.hpp"

#include "system/text/harmless_text.hpp"

#include <array>

namespace kelmar {

namespace {

// U+2068, byte by byte: as text it would reorder the lines of this source as well.
constexpr std::array isolate{'\xE2', '\x81', '\xA8'};
constexpr std::string_view firstStrongIsolate(isolate.data(), isolate.size());
constexpr std::string_view popIsolate = "\u2069";
constexpr std::string_view zeroWidthSpace = "\u200B";
constexpr std::string_view replacement = "\uFFFD";

struct Character {
    std::string_view bytes;
    char32_t code;
};

/// The first character of `text`, which is well-formed and not empty.
Character firstOf(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    char32_t code = length == 1 ? first : first & (0x7FU >> length);
    for (const char byte : text.substr(1, length - 1)) {
        code = (code << 6) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return {text.substr(0, length), code};
}

/// The blocks of right-to-left scripts (Unicode's DerivedBidiClass.txt).
bool isRightToLeft(char32_t code) {
    return (code >= 0x590 && code <= 0x8FF) || (code >= 0xFB1D && code <= 0xFDFF) ||
           (code >= 0xFE70 && code <= 0xFEFE) || (code >= 0x10800 && code <= 0x10FFF) ||
           (code >= 0x1E800 && code <= 0x1EFFF);
}

/// Returns true if `between` may occur inside a name, between two right-to-left characters.
bool joinsWords(std::string_view between) {
    return between.empty() || between == " " || between == "-" || between == "_" || between == ".";
}

/// Few fonts have the control pictures, and they are unreadable at text size.
bool isControlPicture(char32_t code) {
    return code >= 0x2400 && code <= 0x2421;
}

} // namespace

std::string drawnText(std::string_view text) {
    const std::string harmless = harmlessText(text);
    std::string drawn;
    std::string between; // the text since the latest right-to-left character
    bool isolated = false;
    const auto leave = [&] {
        if (isolated) {
            drawn += popIsolate;
            isolated = false;
        }
        drawn += between;
        between.clear();
    };
    for (std::string_view rest = harmless; !rest.empty();) {
        const auto [bytes, code] = firstOf(rest);
        rest.remove_prefix(bytes.size());
        if (isRightToLeft(code)) {
            if (!isolated || !joinsWords(between)) {
                leave();
                drawn += firstStrongIsolate;
                isolated = true;
            }
            drawn += between;
            between.clear();
            drawn += bytes;
            continue;
        }
        between += isControlPicture(code) ? replacement : bytes;
        if (code == U'/') {
            between += zeroWidthSpace;
        }
    }
    leave();
    return drawn;
}

std::string withoutGuides(std::string_view drawn) {
    std::string plain;
    for (std::string_view rest = drawn; !rest.empty();) {
        const std::string_view bytes = firstOf(rest).bytes;
        rest.remove_prefix(bytes.size());
        if (bytes != firstStrongIsolate && bytes != popIsolate && bytes != zeroWidthSpace) {
            plain += bytes;
        }
    }
    return plain;
}

} // namespace kelmar
