#pragma once

#include <utility>

#include <unistd.h>

namespace kelmar {

/// Owns an open file descriptor, or none (-1), and closes it at its end. An error of close(2) is
/// ignored: on the systems meant here the descriptor is gone either way.
class Descriptor {
public:
    Descriptor() = default;

    explicit Descriptor(int value) : value_(value) {}

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    Descriptor(Descriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}

    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }

    ~Descriptor() {
        if (isOpen()) {
            ::close(value_);
        }
    }

    [[nodiscard]] int get() const { return value_; }

    [[nodiscard]] bool isOpen() const { return value_ >= 0; }

private:
    int value_ = -1;
};

} // namespace kelmar
