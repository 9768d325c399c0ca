#pragma once

#include <string_view>

namespace kelmar {

/// Whether the XML property list in `text` holds no null character, no more containers than any
/// real record and none nested deeper. Readers build and free such a tree by recursion, on stacks
/// that may be small: they must be kept from the rest.
bool isModestXmlPropertyList(std::string_view text);

} // namespace kelmar
