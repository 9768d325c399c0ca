#pragma once

#include <chrono>

// gcc defines the first kind of names, clang answers the second kind of questions.
#ifdef __has_feature
#define KELMAR_HAS_FEATURE(feature) __has_feature(feature)
#else
#define KELMAR_HAS_FEATURE(feature) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || KELMAR_HAS_FEATURE(address_sanitizer)
#define KELMAR_ADDRESS_SANITIZER 1
#else
#define KELMAR_ADDRESS_SANITIZER 0
#endif
#if defined(__SANITIZE_THREAD__) || KELMAR_HAS_FEATURE(thread_sanitizer)
#define KELMAR_THREAD_SANITIZER 1
#else
#define KELMAR_THREAD_SANITIZER 0
#endif

namespace kelmar::test {

/// True if this build has a sanitizer: such a program is several times slower, so that its times
/// say nothing about the shipped one.
constexpr bool isSanitized = KELMAR_ADDRESS_SANITIZER != 0 || KELMAR_THREAD_SANITIZER != 0;

/// True if a signal that comes during waitpid(2) is handled only after it: the thread sanitizer
/// puts signals off until a call that it knows to block.
constexpr bool putsSignalsOff = KELMAR_THREAD_SANITIZER != 0;

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
