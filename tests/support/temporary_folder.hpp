#pragma once

#include <string>

namespace kelmar::test {

/// A new folder for one test; the destructor removes it with its content. No part of its path is a
/// symlink.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    [[nodiscard]] const std::string& path() const { return path_; }

    [[nodiscard]] std::string operator/(const std::string& name) const {
        return path_ + "/" + name;
    }

private:
    std::string path_;
};

} // namespace kelmar::test
