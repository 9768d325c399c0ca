#pragma once

#include <string_view>

namespace kelmar {

/// Returns true if the XML property list in `text` holds no null character, no more containers than
/// any real file and none nested deeper. Readers build and free the tree recursively, possibly on a
/// small stack: they must not see any other file.
bool isModestXmlPropertyList(std::string_view text);

} // namespace kelmar
