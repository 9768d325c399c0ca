#pragma once

#include "system/files/file_descriptor.hpp"

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace kelmar {

/// A folder of a tree that waits to be looked into, known by its name and the folder above it. The
/// one above lives as long as one inside it waits. It may be open or not: a tree can have more
/// folders than a process may have open files, and paths longer than the system takes.
class PendingDirectory {
public:
    /// The topmost folder of a tree, open.
    explicit PendingDirectory(FileDescriptor descriptor) : descriptor_(std::move(descriptor)) {}

    PendingDirectory(std::shared_ptr<PendingDirectory> above, std::string_view name)
        : above_(std::move(above)),
          name_(name),
          depth_(above_->depth_ + 1) {}

    PendingDirectory(const PendingDirectory&) = delete;
    PendingDirectory& operator=(const PendingDirectory&) = delete;
    ~PendingDirectory();

    /// Opens this folder, found from the nearest one above that is open; not open when that fails.
    /// A link in its place is not followed. The topmost folder gives its own descriptor away.
    [[nodiscard]] FileDescriptor open();

    /// Keeps `descriptor`, this folder's own, for the sake of those inside it, if the number of
    /// folders kept open so far, `count`, allows it. Called before any folder inside waits; no
    /// change after that.
    void keepOpen(FileDescriptor descriptor, std::atomic<int>& count);

private:
    std::shared_ptr<PendingDirectory> above_;
    std::string name_;
    std::size_t depth_ = 0;
    FileDescriptor descriptor_;
    std::atomic<int>* openCount_ = nullptr;
};

} // namespace kelmar
