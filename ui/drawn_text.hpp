#pragma once

#include <string>
#include <string_view>

namespace kelmar {

/// `text` as a window draws it, well-formed UTF-8: harmless; every right-to-left name isolated, so
/// that names which follow one another keep their order; and with a place after every slash where a
/// line may break. A character that is made visible is one that fonts have.
///
/// Only for drawing: what is copied or read aloud is the text itself.
std::string drawnText(std::string_view text);

} // namespace kelmar
