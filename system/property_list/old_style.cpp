#include "system/property_list/old_style.hpp"

#include "system/text/utf8.hpp"

#include <algorithm>

namespace kelmar {

namespace {

constexpr int maximumDepth = 64;

bool isDigit(char character, int base) {
    const bool decimal = character >= '0' && character < '0' + std::min(base, 10);
    const bool letter =
        (character >= 'a' && character <= 'f') || (character >= 'A' && character <= 'F');
    return decimal || (base == 16 && letter);
}

char32_t digitValue(char character) {
    const auto code = static_cast<char32_t>(static_cast<unsigned char>(character));
    return code <= '9' ? code - '0' : (code | 0x20) - 'a' + 10;
}

/// Characters that need no quotes: those of identifiers, versions and paths.
bool isBare(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           isDigit(character, 10) ||
           std::string_view("_$/:.-").find(character) != std::string_view::npos;
}

class Reader {
public:
    Reader(std::string_view text, std::string_view key) : rest_(text), key_(key) {}

    std::optional<std::string> read() {
        skipBlank();
        return take('{') && dictionary(0) && isAtEnd() ? found_ : std::nullopt;
    }

    /// Returns true if the whole text is one value, of any type.
    bool isSound() { return value(0, false) && isAtEnd(); }

private:
    bool isAtEnd() {
        skipBlank();
        return rest_.empty() && !unterminatedComment_;
    }

    bool take(char character) {
        if (rest_.empty() || rest_.front() != character) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    void skipBlank() {
        while (!rest_.empty()) {
            if (std::string_view(" \t\r\n\f\v").find(rest_.front()) != std::string_view::npos) {
                rest_.remove_prefix(1);
            } else if (rest_.starts_with("//")) {
                rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
            } else if (rest_.starts_with("/*")) {
                const std::size_t end = rest_.find("*/", 2);
                unterminatedComment_ = end == std::string_view::npos;
                rest_.remove_prefix(unterminatedComment_ ? rest_.size() : end + 2);
            } else {
                return;
            }
        }
    }

    /// Parses what follows "{", up to and including "}".
    bool dictionary(int depth) {
        while (true) {
            skipBlank();
            if (take('}')) {
                return true;
            }
            const std::optional<std::string> key = string();
            skipBlank();
            if (!key || !take('=') || !value(depth, depth == 0 && *key == key_)) {
                return false;
            }
            skipBlank();
            if (!take(';')) {
                return false;
            }
        }
    }

    /// Parses what follows "(", up to and including ")". A trailing comma is allowed.
    bool array(int depth) {
        while (true) {
            skipBlank();
            if (take(')')) {
                return true;
            }
            if (!value(depth, false)) {
                return false;
            }
            skipBlank();
            if (!take(',')) {
                return take(')');
            }
        }
    }

    /// Parses what follows "<", up to and including ">": pairs of hexadecimal digits, blanks
    /// anywhere.
    bool data() {
        std::size_t digits = 0;
        while (true) {
            skipBlank();
            if (take('>')) {
                return digits % 2 == 0;
            }
            if (rest_.empty() || !isDigit(rest_.front(), 16)) {
                return false;
            }
            rest_.remove_prefix(1);
            ++digits;
        }
    }

    bool value(int depth, bool wanted) {
        if (wanted) {
            found_.reset();
        }
        skipBlank();
        if (take('{')) {
            return depth < maximumDepth && dictionary(depth + 1);
        }
        if (take('(')) {
            return depth < maximumDepth && array(depth + 1);
        }
        if (take('<')) {
            return data();
        }
        std::optional<std::string> text = string();
        if (!text) {
            return false;
        }
        if (wanted) {
            found_ = std::move(text);
        }
        return true;
    }

    std::optional<std::string> string() {
        if (take('"')) {
            return quoted('"');
        }
        if (take('\'')) {
            return quoted('\'');
        }
        const auto* const end = std::find_if_not(rest_.begin(), rest_.end(), isBare);
        std::string text(rest_.begin(), end);
        rest_.remove_prefix(text.size());
        return text.empty() ? std::nullopt : std::optional(std::move(text));
    }

    std::optional<std::string> quoted(char quote) {
        std::string text;
        while (!rest_.empty()) {
            const char character = rest_.front();
            rest_.remove_prefix(1);
            if (character == quote) {
                return text;
            }
            if (character != '\\') {
                text.push_back(character);
            } else if (!escape(text)) {
                return std::nullopt;
            }
        }
        return std::nullopt;
    }

    /// Parses what follows a backslash inside quotes.
    bool escape(std::string& text) {
        if (rest_.empty()) {
            return false;
        }
        const char character = rest_.front();
        if (isDigit(character, 8)) {
            // Above 127 an octal escape is a character of an encoding that no tool writes any more.
            const std::optional<char32_t> code = digits(1, 3, 8);
            return code && *code < 0x80 && (appendUtf8(text, *code), true);
        }
        rest_.remove_prefix(1);
        if (character == 'U' || character == 'u') {
            const std::optional<char32_t> code = digits(1, 4, 16);
            return code && (appendUtf8(text, *code), true);
        }
        constexpr std::string_view names = "abfnrtv\"'\\\n";
        constexpr std::string_view meanings = "\a\b\f\n\r\t\v\"'\\\n";
        const std::size_t at = names.find(character);
        text.push_back(at == std::string_view::npos ? character : meanings[at]);
        return true;
    }

    std::optional<char32_t> digits(std::size_t least, std::size_t most, int base) {
        char32_t value = 0;
        std::size_t count = 0;
        while (count < most && !rest_.empty() && isDigit(rest_.front(), base)) {
            value = value * static_cast<char32_t>(base) + digitValue(rest_.front());
            rest_.remove_prefix(1);
            ++count;
        }
        return count < least ? std::nullopt : std::optional(value);
    }

    std::string_view rest_;
    std::string_view key_;
    std::optional<std::string> found_;
    bool unterminatedComment_ = false;
};

} // namespace

std::optional<std::string> stringInOldStylePropertyList(std::string_view text,
                                                        std::string_view key) {
    return Reader(text, key).read();
}

bool isModestOldStylePropertyList(std::string_view text) {
    const auto isOpening = [](char character) { return character == '(' || character == '{'; };
    return std::count_if(text.begin(), text.end(), isOpening) <= maximumDepth ||
           Reader(text, {}).isSound();
}

} // namespace kelmar
