#pragma once

#include <memory>

#include <dirent.h>

namespace kelmar {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// A folder that is being read; closed at the end (opendir(3), closedir(3)).
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

/// The next entry besides "." and "..", valid until the next call for the same folder (readdir(3)).
/// Null when there is none, with errno 0 at the end of the folder and another after an error.
const dirent* nextEntry(const OpenFolder& folder);

} // namespace kelmar
