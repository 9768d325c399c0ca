#pragma once

#include <string>

namespace kelmar::test {

/// A new folder for one test; the destructor removes it with its content. No part of its path is a
/// symlink.
class TemporaryFolder {
public:
    /// `memory`, where the machine has tmpfs(5), suits many small files: a disk's file system needs
    /// many times as long to make them, and some slow down after many were deleted.
    enum class Storage { disk, memory };

    explicit TemporaryFolder(Storage storage = Storage::disk);
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
