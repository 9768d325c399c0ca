#pragma once

#include <string>
#include <vector>

namespace kelmar {

/// Formats `words` as a list in a sentence, in the person's language if the system knows how, else
/// in English: "a", "a and b", "a, b, and c". Empty without words.
std::string listed(const std::vector<std::string>& words);

} // namespace kelmar
