#include "system/text/utf16.hpp"

#include "system/text/utf8.hpp"

namespace kelmar {

namespace {

constexpr char32_t unpaired = 0xD800; // any surrogate: appendUtf8 replaces it

class Units {
public:
    Units(std::string_view bytes, bool bigEndian) : bytes_(bytes), high_(bigEndian ? 0 : 1) {}

    [[nodiscard]] bool atEnd() const { return bytes_.empty(); }

    [[nodiscard]] char32_t peek() const {
        if (bytes_.size() < 2) {
            return bytes_.empty() ? 0 : unpaired;
        }
        const auto byte = [this](std::size_t at) {
            return static_cast<char32_t>(static_cast<unsigned char>(bytes_[at]));
        };
        return (byte(high_) << 8) | byte(1 - high_);
    }

    char32_t next() {
        const char32_t unit = peek();
        bytes_.remove_prefix(bytes_.size() < 2 ? bytes_.size() : 2);
        return unit;
    }

private:
    std::string_view bytes_;
    std::size_t high_;
};

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

} // namespace

std::optional<std::string> utf8FromMarkedUtf16(std::string_view bytes) {
    const std::string_view mark = bytes.substr(0, 2);
    const bool bigEndian = mark == "\xFE\xFF";
    if (!bigEndian && mark != "\xFF\xFE") {
        return std::nullopt;
    }
    std::string text;
    Units units(bytes.substr(2), bigEndian);
    while (!units.atEnd()) {
        const char32_t unit = units.next();
        if (isHighSurrogate(unit) && isLowSurrogate(units.peek())) {
            appendUtf8(text, 0x10000 + ((unit - 0xD800) << 10) + (units.next() - 0xDC00));
        } else {
            appendUtf8(text, unit);
        }
    }
    return text;
}

} // namespace kelmar
