#pragma once

#include <memory>

#include <dirent.h>

namespace kelmar {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// A folder open for reading; the destructor closes it (opendir(3), closedir(3)).
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

/// The next entry except "." and "..", valid until the next call for the same folder (readdir(3)).
/// Null at the end, with errno 0, and after an error, with errno set.
const dirent* nextEntry(const OpenFolder& folder);

} // namespace kelmar
