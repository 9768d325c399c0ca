#include "admin/status_folder.hpp"

#include "system/files/files.hpp"
#include "system/text/uuid.hpp"

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {

namespace {

constexpr std::string_view folderName = "/kelmar-uninstaller-";
constexpr std::string_view fileName = "/status";

/// No run takes longer. On a file system without locks, age alone tells whether a folder is in use.
constexpr std::time_t day = 86400; // seconds

FileDescriptor openFolder(const std::string& path) {
    return FileDescriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

bool lock(const FileDescriptor& folder) {
    return folder.isOpen() && ::flock(folder.get(), LOCK_EX | LOCK_NB) == 0;
}

bool isOldAndMine(const FileDescriptor& folder) {
    struct stat status {};

    return folder.isOpen() && ::fstat(folder.get(), &status) == 0 && status.st_uid == ::getuid() &&
           status.st_mtime < std::time(nullptr) - day;
}

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

void StatusFolder::sweep(const std::string& parent) {
    for (const std::string& name : sortedNames(parent).value_or(std::vector<std::string>{})) {
        const std::string path = parent + "/" + name;
        const std::string file = path + std::string(fileName);
        if (!isFileBelow(parent, file)) {
            continue;
        }
        const FileDescriptor folder = openFolder(path);
        if (isOldAndMine(folder) && lock(folder)) {
            removeFile(file);
            removeFolder(path);
        }
    }
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
    // mkdir(2) subtracts the umask; chmod(2) restores the permissions. No race in between: the name
    // can't be guessed, and no umask adds permissions.
    if (::mkdir(path_.c_str(), S_IRWXU) != 0 || ::chmod(path_.c_str(), S_IRWXU) != 0) {
        error_ = std::error_code(errno, std::generic_category());
        return;
    }
    lock_ = openFolder(path_);
    static_cast<void>(lock(lock_)); // cannot be contended yet: the folder is new
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
