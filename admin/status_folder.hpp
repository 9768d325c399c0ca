#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace kelmar {

/// A fresh folder below `parent` for the status file of one run, both readable by this user alone
/// whatever the umask is, and both gone again at its end.
class StatusFolder {
public:
    explicit StatusFolder(const std::string& parent);
    StatusFolder(const StatusFolder&) = delete;
    StatusFolder& operator=(const StatusFolder&) = delete;
    ~StatusFolder();

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
};

} // namespace kelmar
