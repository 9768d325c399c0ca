#pragma once

#include <string>
#include <string_view>

namespace kelmar {

/// Prepares `text` for drawing; the result is well-formed UTF-8. Makes it harmless with characters
/// that fonts have, isolates every right-to-left name so that consecutive names keep their order,
/// and allows a line break after every slash.
///
/// Only for drawing: copy and announce the original text.
std::string drawnText(std::string_view text);

/// A part of such a text without what only guides its lines.
std::string withoutGuides(std::string_view drawn);

} // namespace kelmar
