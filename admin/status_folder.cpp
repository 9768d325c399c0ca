#include "admin/status_folder.hpp"

#include "system/files/file_descriptor.hpp"
#include "system/text/uuid.hpp"

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>

namespace kelmar {

StatusFolder::StatusFolder(const std::string& parent)
    : path_(parent + "/kelmar-uninstaller-" + randomUuid()) {
    std::filesystem::create_directories(parent, error_);
    if (error_) {
        return;
    }
    // mkdir(2) subtracts the umask, so an odd one is made up for. Nobody else could have been in
    // between: the name can't be guessed, and no umask adds permissions.
    if (::mkdir(path_.c_str(), S_IRWXU) != 0 || ::chmod(path_.c_str(), S_IRWXU) != 0) {
        error_ = std::error_code(errno, std::generic_category());
        return;
    }
    const FileDescriptor status(::open(
        file().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (status.isOpen()) {
        static_cast<void>(::fchmod(status.get(), S_IRUSR | S_IWUSR));
    }
}

StatusFolder::~StatusFolder() {
    if (!error_) {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
}

} // namespace kelmar
