#include "admin/status_folder.hpp"

#include "system/files/file_descriptor.hpp"
#include "system/text/uuid.hpp"

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>

namespace kelmar {

namespace {

constexpr std::string_view folderName = "/kelmar-uninstaller-";
constexpr std::string_view fileName = "/status";

} // namespace

bool StatusFolder::isFileBelow(const std::string& parent, std::string_view path) {
    const auto take = [&path](std::string_view start) {
        const bool found = path.starts_with(start);
        path.remove_prefix(found ? start.size() : 0);
        return found;
    };
    return take(parent) && take(folderName) && path.ends_with(fileName) &&
           isUuid(path.substr(0, path.size() - fileName.size()));
}

StatusFolder::StatusFolder(const std::string& parent) {
    const std::optional<std::string> uuid = randomUuid();
    if (!uuid) {
        path_ = parent;
        error_ = std::error_code(errno, std::generic_category());
        return;
    }
    path_ = parent + std::string(folderName) + *uuid;
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
