#pragma once

#include "tests/support/program.hpp"

#include <atomic>
#include <chrono>
#include <thread>

#include <sys/types.h>

namespace kelmar::test {

/// A program that runs while a test looks at it. It ends with the object at the latest.
class WindowProgram {
public:
    using Clock = std::chrono::steady_clock;

    explicit WindowProgram(Program program);
    WindowProgram(const WindowProgram&) = delete;
    WindowProgram& operator=(const WindowProgram&) = delete;
    ~WindowProgram();

    [[nodiscard]] pid_t process() const { return process_; }

    [[nodiscard]] bool hasEnded() const { return ended_; }

    /// How it ended; waits for that.
    [[nodiscard]] const ProgramEnd& end();

    /// When it ended, after `end()`.
    [[nodiscard]] Clock::time_point endedAt() const { return endedAt_; }

private:
    pid_t process_ = -1;
    std::atomic<bool> ended_{false};
    ProgramEnd end_;
    Clock::time_point endedAt_;
    std::thread runner_;
};

} // namespace kelmar::test
