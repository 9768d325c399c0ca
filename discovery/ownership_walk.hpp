#pragma once

#include <string>

#include <sys/types.h>

namespace kelmar {

/// Whether everything beneath the folder `path` (not the folder itself) belongs to `owner`, links
/// not followed. False as well when something beneath cannot be read or vanishes during the walk.
/// Looks at folders on up to `threads` threads at once, the calling one included, and stops them
/// all at the first entry that decides. Depth is limited by memory alone, neither by the stack, by
/// the length of a path nor by the number of open files.
bool everythingBeneathBelongsTo(uid_t owner, const std::string& path, unsigned threads);

} // namespace kelmar
