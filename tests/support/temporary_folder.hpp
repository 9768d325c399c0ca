#pragma once

#include <string>

namespace kelmar::test {

/// A fresh folder for one test, removed with everything in it at the end. Its path is physical: no
/// part of it is a link.
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
