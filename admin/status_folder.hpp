#pragma once

#include "system/files/file_descriptor.hpp"

#include <string>
#include <string_view>
#include <system_error>

namespace kelmar {

/// A fresh folder below `parent` for the status file of one run, both readable by this user alone
/// whatever the umask is, and both gone again at its end. Until then the folder is locked
/// (flock(2)), which tells it from one that a killed run left.
class StatusFolder {
public:
    explicit StatusFolder(const std::string& parent);
    StatusFolder(const StatusFolder&) = delete;
    StatusFolder& operator=(const StatusFolder&) = delete;
    ~StatusFolder();

    /// Removes from `parent` what killed runs left there: folders with a name that objects of this
    /// class give, of this user, unlocked, and unchanged for a day. One that holds anything but a
    /// status file stays.
    static void sweep(const std::string& parent);

    /// Whether `path` is that of a status file which an object of this class makes below `parent`.
    static bool isFileBelow(const std::string& parent, std::string_view path);

    /// Why the folder could not be made, if it could not. (A missing status file is no error:
    /// nothing is then read from it.)
    [[nodiscard]] const std::error_code& error() const { return error_; }

    [[nodiscard]] const std::string& path() const { return path_; }

    [[nodiscard]] std::string file() const { return path_ + "/status"; }

private:
    std::string path_;
    std::error_code error_;
    FileDescriptor lock_;
};

} // namespace kelmar
