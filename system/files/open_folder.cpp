#include "system/files/open_folder.hpp"

#include <cerrno>
#include <string_view>

namespace kelmar {

const dirent* nextEntry(const OpenFolder& folder) {
    while (true) {
        errno = 0; // readdir(3) tells its end and an error apart by errno alone
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
