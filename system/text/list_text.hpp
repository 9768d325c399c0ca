#pragma once

#include <string>
#include <vector>

namespace kelmar {

/// `words` as a sentence lists them, in the way of the person's language where the system knows it,
/// else in English: "a", "a and b", "a, b, and c". Empty without words.
std::string listed(const std::vector<std::string>& words);

} // namespace kelmar
