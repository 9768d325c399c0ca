#include "app/interruption.hpp"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <ctime>

namespace kelmar {

namespace {

constexpr std::array<int, 3> signals{SIGINT, SIGHUP, SIGTERM};

// All that a signal handler may access (signal-safety(7)).
std::atomic<std::int64_t> firstTime = 0; ///< in milliseconds; 0 before the first signal
std::atomic<int> firstSignal = 0;
static_assert(decltype(firstTime)::is_always_lock_free &&
              decltype(firstSignal)::is_always_lock_free);

std::int64_t now() {
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return std::int64_t{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000 + 1;
}

/// One event may arrive as two signals. When a terminal closes, the kernel signals the foreground
/// processes, and the shell signals them again before it ends. timeout(1) signals its child, and
/// then the child's process group.
constexpr std::int64_t echo(int number) {
    return number == SIGHUP ? 1000 : 50; // milliseconds
}

void takeNote(int number) {
    const int error = errno;
    const std::int64_t time = now();
    std::int64_t first = 0;
    if (firstTime.compare_exchange_strong(first, time)) {
        firstSignal = number;
    } else if (time - first > echo(number)) {
        // Blocked until this function returns, then delivered with the default action.
        std::signal(number, SIG_DFL);
        std::raise(number);
    }
    errno = error;
}

void setAction(int number, void (*action)(int)) {
    struct sigaction wanted {};

    wanted.sa_handler = action;
    wanted.sa_flags = SA_RESTART;
    for (const int other : signals) {
        sigaddset(&wanted.sa_mask, other);
    }
    ::sigaction(number, &wanted, nullptr);
}

bool isIgnored(int number) {
    struct sigaction current {};

    return ::sigaction(number, nullptr, &current) == 0 && current.sa_handler == SIG_IGN;
}

} // namespace

Interruption::Interruption() {
    firstTime = 0;
    firstSignal = 0;
    for (const int number : signals) {
        if (!isIgnored(number)) {
            setAction(number, takeNote);
        }
    }
}

Interruption::~Interruption() {
    for (const int number : signals) {
        if (!isIgnored(number)) {
            setAction(number, SIG_DFL);
        }
    }
}

int Interruption::signal() {
    return firstSignal;
}

} // namespace kelmar
