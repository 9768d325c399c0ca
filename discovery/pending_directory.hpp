#pragma once

#include "system/files/file_descriptor.hpp"

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace kelmar {

/// A folder of a tree that waits to be examined, known by its name and its parent. It keeps its
/// parent alive. A folder need not be open: a tree can have more folders than a process may have
/// file descriptors, and paths longer than the system accepts.
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

    /// Opens this folder by way of its nearest open ancestor; the result is not open if that fails.
    /// Does not follow a symlink in its place. The topmost folder gives up its own descriptor.
    [[nodiscard]] FileDescriptor open();

    /// Keeps this folder's `descriptor` open for the folders inside it, if `count`, the number of
    /// folders kept open so far, allows it. Call it before any folder inside waits; not thread-safe
    /// after that.
    void keepOpen(FileDescriptor descriptor, std::atomic<int>& count);

private:
    std::shared_ptr<PendingDirectory> above_;
    std::string name_;
    std::size_t depth_ = 0;
    FileDescriptor descriptor_;
    std::atomic<int>* openCount_ = nullptr;
};

} // namespace kelmar
