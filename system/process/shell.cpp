#include "system/process/shell.hpp"

#include "system/files/reading.hpp"
#include "system/process/child_process.hpp"
#include "system/text/utf8.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <thread>

#include <poll.h>
#include <sys/wait.h>

namespace kelmar::Shell {

namespace {

using Clock = std::chrono::steady_clock;

std::string causeOf(int error) {
    return std::generic_category().message(error);
}

/// Reads both streams as data arrives: a child that fills one pipe while this process waits for the
/// other would never end.
void drainBoth(StartedChild& child, std::string& output, std::string& error) {
    constexpr std::size_t portion = 65536;
    std::array<FileDescriptor*, 2> ends{&child.output, &child.errors};
    std::array<std::string*, 2> texts{&output, &error};
    while (child.output.isOpen() || child.errors.isOpen()) {
        // poll(2) ignores a negative descriptor, which a closed one has.
        std::array<pollfd, 2> states{
            {{child.output.get(), POLLIN, 0}, {child.errors.get(), POLLIN, 0}}};
        if (::poll(states.data(), states.size(), -1) < 0) {
            if (errno == EINTR) {
                continue;
            }
            return;
        }
        for (std::size_t index = 0; index < ends.size(); ++index) {
            if (states.at(index).revents != 0 &&
                readOnce(ends.at(index)->get(), *texts.at(index), portion) <= 0) {
                *ends.at(index) = FileDescriptor();
            }
        }
    }
}

/// Returns true if everything was read before `deadline`.
bool drainUntil(Clock::time_point deadline, const FileDescriptor& output, std::string& bytes) {
    constexpr std::size_t portion = 65536;
    while (Clock::now() < deadline) {
        pollfd state{output.get(), POLLIN, 0};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        constexpr std::chrono::milliseconds longest =
            std::chrono::hours(24); // poll(2) takes an int
        const int ready = ::poll(&state, 1, static_cast<int>(std::min(left, longest).count()));
        if (ready > 0 && readOnce(output.get(), bytes, portion) <= 0) {
            return true;
        }
        if (ready < 0 && errno != EINTR) {
            return false;
        }
    }
    return false;
}

/// Kills `process`, and reaps it if it ends.
void abandon(pid_t process) {
    constexpr std::chrono::milliseconds pause{10};
    constexpr int looks = 100;
    ::kill(process, SIGKILL);
    for (int look = 0; look < looks && ::waitpid(process, nullptr, WNOHANG) == 0; ++look) {
        std::this_thread::sleep_for(pause);
    }
}

} // namespace

Result run(const std::string& executable, const std::vector<std::string>& arguments,
           std::size_t limit) {
    StartedChild child = startChild(executable, arguments);
    if (child.error != 0) {
        return {-1, causeOf(child.error)};
    }
    // Read before waiting: a child that fills the pipe would otherwise never end.
    std::string bytes;
    appendToEnd(child.output.get(), bytes, limit);
    dropToEnd(child.output.get());
    child.output = FileDescriptor();
    const std::int32_t status = waitForChild(child.process);
    return {status, decodeUtf8(bytes)};
}

std::optional<Result> runWithin(std::chrono::milliseconds patience, const std::string& executable,
                                const std::vector<std::string>& arguments) {
    const StartedChild child = startChild(executable, arguments);
    if (child.error != 0) {
        return Result{-1, causeOf(child.error)};
    }
    std::string bytes;
    if (!drainUntil(Clock::now() + patience, child.output, bytes)) {
        abandon(child.process);
        return std::nullopt;
    }
    const std::int32_t status = waitForChild(child.process);
    return Result{status, decodeUtf8(bytes)};
}

SeparateResult runSeparately(const std::string& executable,
                             const std::vector<std::string>& arguments) {
    StartedChild child = startChild(executable, arguments, ChildStreams::apart);
    if (child.error != 0) {
        return {-1, {}, causeOf(child.error)};
    }
    std::string output;
    std::string error;
    drainBoth(child, output, error);
    const std::int32_t status = waitForChild(child.process);
    return {status, decodeUtf8(output), decodeUtf8(error)};
}

} // namespace kelmar::Shell
