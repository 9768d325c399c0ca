#pragma once

#include <chrono>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define KELMAR_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define KELMAR_SANITIZED 1
#endif
#endif
#ifndef KELMAR_SANITIZED
#define KELMAR_SANITIZED 0
#endif

namespace kelmar::test {

/// True if this build has a sanitizer: such a program is several times slower, so that its times
/// say nothing about the shipped one.
constexpr bool isSanitized = KELMAR_SANITIZED != 0;

/// The longest time that a program may take to exit when it is told to and is allowed to.
constexpr std::chrono::milliseconds exitTimeout(isSanitized ? 3'000 : 200);

/// The timeout of a wait for something that must happen, counted from construction; only a failing
/// test waits so long.
class Deadline {
public:
    [[nodiscard]] bool hasPassed() const { return std::chrono::steady_clock::now() > end_; }

private:
    std::chrono::steady_clock::time_point end_ =
        std::chrono::steady_clock::now() + std::chrono::seconds(120);
};

} // namespace kelmar::test
