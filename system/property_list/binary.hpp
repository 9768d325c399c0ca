#pragma once

#include <string_view>

namespace kelmar {

/// Returns true if the binary property list in `bytes` is well-formed and small when expanded.
/// Objects may be shared, so a few hundred bytes can describe a tree of any size: a reader that
/// builds the tree must not see such a file. Returns false also for nesting deeper than any real
/// file has, for an object that contains itself, and for counts and references that point outside
/// the file.
bool isModestBinaryPropertyList(std::string_view bytes);

} // namespace kelmar
