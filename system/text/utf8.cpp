#include "system/text/utf8.hpp"

#include <cstddef>

namespace kelmar {

namespace {

constexpr std::string_view replacementBytes = "\xEF\xBF\xBD";

struct Sequence {
    std::size_t length; ///< bytes in the sequence, or in its maximal subpart if it is ill-formed
    bool wellFormed;
};

struct ByteRange {
    unsigned char first;
    unsigned char last;
};

struct Lead {
    std::size_t length; ///< 0 if no sequence begins with this byte
    ByteRange second; ///< narrower than 80..BF where overlong forms, surrogates or excess would fit
};

Lead lead(unsigned char byte) {
    if (byte < 0xC2) {
        return {0, {}};
    }
    if (byte < 0xE0) {
        return {2, {0x80, 0xBF}};
    }
    if (byte < 0xF0) {
        const ByteRange second = byte == 0xE0   ? ByteRange{0xA0, 0xBF}
                                 : byte == 0xED ? ByteRange{0x80, 0x9F}
                                                : ByteRange{0x80, 0xBF};
        return {3, second};
    }
    if (byte < 0xF5) {
        const ByteRange second = byte == 0xF0   ? ByteRange{0x90, 0xBF}
                                 : byte == 0xF4 ? ByteRange{0x80, 0x8F}
                                                : ByteRange{0x80, 0xBF};
        return {4, second};
    }
    return {0, {}};
}

/// The sequence at the start of `bytes`, which must be non-empty and begin with a non-ASCII byte.
Sequence sequence(std::string_view bytes) {
    const auto [length, second] = lead(static_cast<unsigned char>(bytes.front()));
    if (length == 0) {
        return {1, false};
    }
    ByteRange allowed = second;
    for (std::size_t index = 1; index < length; ++index) {
        if (index == bytes.size()) {
            return {index, false};
        }
        const auto byte = static_cast<unsigned char>(bytes[index]);
        if (byte < allowed.first || byte > allowed.last) {
            return {index, false};
        }
        allowed = {0x80, 0xBF};
    }
    return {length, true};
}

std::size_t asciiPrefix(std::string_view bytes) {
    std::size_t length = 0;
    while (length < bytes.size() && static_cast<unsigned char>(bytes[length]) < 0x80) {
        ++length;
    }
    return length;
}

} // namespace

std::string decodeUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t ascii = asciiPrefix(bytes);
        text.append(bytes.substr(0, ascii));
        bytes.remove_prefix(ascii);
        if (bytes.empty()) {
            break;
        }
        const Sequence next = sequence(bytes);
        text.append(next.wellFormed ? bytes.substr(0, next.length) : replacementBytes);
        bytes.remove_prefix(next.length);
    }
    return text;
}

bool isUtf8(std::string_view bytes) {
    while (true) {
        bytes.remove_prefix(asciiPrefix(bytes));
        if (bytes.empty()) {
            return true;
        }
        const Sequence next = sequence(bytes);
        if (!next.wellFormed) {
            return false;
        }
        bytes.remove_prefix(next.length);
    }
}

void appendUtf8(std::string& text, char32_t codePoint) {
    const auto append = [&text](char32_t bits) { text.push_back(static_cast<char>(bits)); };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0 | (codePoint >> 6));
        append(0x80 | (codePoint & 0x3F));
    } else if ((codePoint >= 0xD800 && codePoint < 0xE000) || codePoint > 0x10FFFF) {
        text.append(replacementBytes);
    } else if (codePoint < 0x10000) {
        append(0xE0 | (codePoint >> 12));
        append(0x80 | ((codePoint >> 6) & 0x3F));
        append(0x80 | (codePoint & 0x3F));
    } else {
        append(0xF0 | (codePoint >> 18));
        append(0x80 | ((codePoint >> 12) & 0x3F));
        append(0x80 | ((codePoint >> 6) & 0x3F));
        append(0x80 | (codePoint & 0x3F));
    }
}

} // namespace kelmar
