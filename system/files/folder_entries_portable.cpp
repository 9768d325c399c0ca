#include "system/files/folder_entries_portable.hpp"

#include "system/files/file_descriptor.hpp"
#include "system/files/open_folder.hpp"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace kelmar {

namespace {

/// Duplicates the descriptor, since closedir(3) closes it and the caller's must stay open. The
/// duplicate shares its position, which is at the beginning.
OpenFolder openFolder(int descriptor) {
    FileDescriptor duplicate(::fcntl(descriptor, F_DUPFD_CLOEXEC, 0));
    OpenFolder folder(duplicate.isOpen() ? ::fdopendir(duplicate.get()) : nullptr);
    if (folder != nullptr) {
        static_cast<void>(duplicate.release()); // closedir(3) closes it
    }
    return folder;
}

} // namespace

bool lookAtEntry(int descriptor, const char* name, FolderEntry& entry) {
    struct stat status {};

    if (::fstatat(descriptor, name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return false;
    }
    entry = {name, status.st_uid, S_ISDIR(status.st_mode)};
    return true;
}

FolderReading readFolderPortably(int descriptor,
                                 const std::function<bool(const FolderEntry&)>& visit) {
    const OpenFolder folder = openFolder(descriptor);
    if (folder == nullptr) {
        return FolderReading::failed;
    }
    while (true) {
        const dirent* const found = nextEntry(folder);
        if (found == nullptr) {
            return errno == 0 ? FolderReading::complete : FolderReading::failed;
        }
        FolderEntry entry{};
        if (!lookAtEntry(descriptor, found->d_name, entry)) {
            return FolderReading::failed;
        }
        if (!visit(entry)) {
            return FolderReading::stopped;
        }
    }
}

} // namespace kelmar
