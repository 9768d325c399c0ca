#pragma once

#include "system/files/file_descriptor.hpp"

#include <string>
#include <string_view>
#include <system_error>

namespace kelmar {

/// A new folder below `parent` for the status file of one run. Only this user can read the folder
/// and the file, whatever the umask is; the destructor removes both. Until then the folder is
/// locked (flock(2)), which distinguishes it from one that a killed run left.
class StatusFolder {
public:
    explicit StatusFolder(const std::string& parent);
    StatusFolder(const StatusFolder&) = delete;
    StatusFolder& operator=(const StatusFolder&) = delete;
    ~StatusFolder();

    /// Removes from `parent` the folders that killed runs left there: named as this class names
    /// them, owned by this user, unlocked, and unchanged for a day. A folder that holds anything
    /// but a status file stays.
    static void sweep(const std::string& parent);

    /// Returns true if `path` is a status file that this class could have made below `parent`.
    static bool isFileBelow(const std::string& parent, std::string_view path);

    /// Why the folder could not be made, if it could not. (A missing status file is no error:
    /// nothing is read from it then.)
    [[nodiscard]] const std::error_code& error() const { return error_; }

    [[nodiscard]] const std::string& path() const { return path_; }

    [[nodiscard]] std::string file() const { return path_ + "/status"; }

private:
    std::string path_;
    std::error_code error_;
    FileDescriptor lock_;
};

} // namespace kelmar
