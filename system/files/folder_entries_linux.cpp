#include "system/files/folder_entries.hpp"

#include <array>
#include <cerrno>
#include <cstddef>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace kelmar {

namespace {

constexpr std::size_t bufferSize = 32768;

/// Requests owner and kind only, so that file systems need not fetch other attributes.
bool look(int folder, const char* name, struct statx& status) {
    return ::statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, STATX_UID | STATX_TYPE,
                   &status) == 0;
}

} // namespace

FolderReading readFolder(int descriptor, const std::function<bool(const FolderEntry&)>& visit) {
    // NOLINTNEXTLINE(*-member-init): filled by the system before it is read
    alignas(dirent64) std::array<std::byte, bufferSize> buffer;
    while (true) {
        const ssize_t length = ::getdents64(descriptor, buffer.data(), buffer.size());
        if (length < 0 && errno == EINTR) {
            continue;
        }
        if (length <= 0) {
            return length == 0 ? FolderReading::complete : FolderReading::failed;
        }
        for (ssize_t at = 0; at < length;) {
            // The kernel packs these records one after another, each with its own length.
            const auto* const entry =
                reinterpret_cast<const dirent64*>(&buffer[static_cast<std::size_t>(at)]);
            at += entry->d_reclen;
            const std::string_view name = entry->d_name;
            if (name == "." || name == "..") {
                continue;
            }

            struct statx status {};

            if (!look(descriptor, entry->d_name, status)) {
                return FolderReading::failed;
            }
            if (!visit({name, status.stx_uid, S_ISDIR(status.stx_mode)})) {
                return FolderReading::stopped;
            }
        }
    }
}

} // namespace kelmar
