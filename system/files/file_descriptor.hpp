#pragma once

#include <utility>

#include <unistd.h>

namespace kelmar {

/// Owns an open file descriptor, or none (-1); the destructor closes it. Ignores errors of
/// close(2): Linux and macOS release the descriptor in any case.
class FileDescriptor {
public:
    FileDescriptor() = default;

    explicit FileDescriptor(int value) : value_(value) {}

    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    FileDescriptor(FileDescriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}

    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }

    ~FileDescriptor() {
        if (isOpen()) {
            ::close(value_);
        }
    }

    [[nodiscard]] int get() const { return value_; }

    /// Gives up ownership: the caller must close the descriptor.
    [[nodiscard]] int release() { return std::exchange(value_, -1); }

    [[nodiscard]] bool isOpen() const { return value_ >= 0; }

private:
    int value_ = -1;
};

} // namespace kelmar
