#pragma once

#include <string_view>

namespace kelmar {

/// Whether the binary property list in `bytes` is sound in its structure and modest when written
/// out in full. A few hundred bytes can stand for a tree of any size, because an object may be
/// referred to again and again: a reader that builds the tree must be kept from such a file. False
/// as well for nesting deeper than any real record has, for an object that contains itself, and for
/// counts and references that point outside the file.
bool isModestBinaryPropertyList(std::string_view bytes);

} // namespace kelmar
