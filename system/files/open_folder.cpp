#include "system/files/open_folder.hpp"

#include <cerrno>
#include <string_view>

namespace kelmar {

const dirent* nextEntry(const OpenFolder& folder) {
    while (true) {
        errno = 0; // only errno distinguishes readdir(3)'s end from an error
        const dirent* const entry = ::readdir(folder.get());
        if (entry == nullptr) {
            return nullptr;
        }
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            return entry;
        }
    }
}

} // namespace kelmar
