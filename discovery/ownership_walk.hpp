#pragma once

#include <string>

#include <sys/types.h>

namespace kelmar {

/// Returns true if everything beneath the folder `path` (not the folder itself) belongs to `owner`;
/// symlinks are not followed. Returns false if something beneath cannot be read or vanishes during
/// the walk. Uses up to `threads` threads, the calling one included, and stops them all at the
/// first entry that decides. Neither the stack, the length of a path nor the number of open files
/// limits the depth; only memory does.
bool everythingBeneathBelongsTo(uid_t owner, const std::string& path, unsigned threads);

} // namespace kelmar
