#pragma once

#include <string>
#include <string_view>

namespace kelmar {

/// Decodes `bytes` as UTF-8 and replaces each ill-formed sequence by U+FFFD as the Unicode Standard
/// recommends (chapter 3, "U+FFFD Substitution of Maximal Subparts"): one replacement for the
/// longest start of a well-formed sequence, one for any other byte. Never fails; the result is
/// well-formed.
std::string decodeUtf8(std::string_view bytes);

/// Returns true if `bytes` is well-formed UTF-8: no overlong form, no surrogate, nothing above
/// U+10FFFF.
bool isUtf8(std::string_view bytes);

/// Appends the UTF-8 form of `codePoint`, or U+FFFD for a surrogate or a value above U+10FFFF.
void appendUtf8(std::string& text, char32_t codePoint);

} // namespace kelmar
