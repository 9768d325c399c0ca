#include "tests/trace/tracer.hpp"

#include "tests/trace/fail_system_call.hpp"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include <sys/ptrace.h>
#include <sys/wait.h>

namespace kelmar::test {

namespace {

std::system_error failed(const char* what) {
    return {errno, std::generic_category(), what};
}

/// What goes with an event: who was made, or who executed.
pid_t eventMessage(pid_t thread) {
    unsigned long message = 0;
    ::ptrace(PTRACE_GETEVENTMSG, thread, nullptr, &message);
    return static_cast<pid_t>(message);
}

std::string executableOf(pid_t process) {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
}

} // namespace

Tracer::Tracer(Follow follow, Judge judge, std::optional<ThreadPath> watched)
    : follow_(follow),
      judge_(std::move(judge)),
      watched_(std::move(watched)) {}

void Tracer::seize(pid_t process) {
    long options =
        PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL | PTRACE_O_TRACEEXEC | PTRACE_O_TRACECLONE;
    if (follow_ == Follow::processes) {
        options |= PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK;
    }
    if (::ptrace(PTRACE_SEIZE, process, nullptr, options) != 0) {
        throw failed("PTRACE_SEIZE");
    }
    program_ = process;
    threads_[process].path = {1};
}

int Tracer::follow() {
    while (true) {
        int status = 0;
        // Never for one in particular: who waits for a child of vfork(2), or for a lock, goes on
        // only when another does.
        const pid_t thread = ::waitpid(-1, &status, __WALL | __WNOTHREAD);
        if (thread < 0 && errno == EINTR) {
            continue;
        }
        if (thread < 0) {
            return status_;
        }
        WIFSTOPPED(status) ? stopped(thread, status) : ended(thread, status);
    }
}

void Tracer::stopped(pid_t thread, int status) {
    if (killing_) {
        ::kill(thread, SIGKILL);
        return;
    }
    const int signal = WSTOPSIG(status);
    switch (status >> 16) {
    case PTRACE_EVENT_FORK:
    case PTRACE_EVENT_VFORK:
    case PTRACE_EVENT_CLONE:
        madeAnother(thread);
        return;
    case PTRACE_EVENT_EXEC:
        executed(thread);
        return;
    case PTRACE_EVENT_STOP:
        if (signal == SIGTRAP) {
            born(thread);
        } else {
            // Somebody stopped the process; it goes on when it is told to, and not by us.
            ::ptrace(PTRACE_LISTEN, thread, nullptr, nullptr);
        }
        return;
    default:
        break;
    }
    if (signal == (SIGTRAP | 0x80)) {
        atSystemCall(thread);
    } else {
        resume(thread, signal);
    }
}

void Tracer::born(pid_t thread) {
    if (threads_.contains(thread)) {
        resume(thread);
    } else {
        nameless_.insert(thread);
    }
}

void Tracer::madeAnother(pid_t maker) {
    Thread& from = threads_.at(maker);
    Thread made;
    made.path = from.path;
    made.path.push_back(++from.made);
    made.executable = from.executable;
    const pid_t thread = eventMessage(maker);
    threads_[thread] = std::move(made);
    if (nameless_.erase(thread) != 0) {
        resume(thread);
    }
    resume(maker);
}

void Tracer::executed(pid_t process) {
    // Of several threads the one that executes takes the place of the first (ptrace(2)).
    const pid_t former = eventMessage(process);
    if (former != process) {
        threads_[process] = std::move(threads_.at(former));
        threads_.erase(former);
    }
    threads_.at(process).executable = executableOf(process);
    if (process == program_ && !executing_) {
        executing_ = true;
        // A sanitizer starts a thread of its own in every child, before it was seized or after.
        threads_.at(process).made = 0;
    }
    resume(process);
}

void Tracer::atSystemCall(pid_t thread) {
    __ptrace_syscall_info info{};
    if (::ptrace(PTRACE_GET_SYSCALL_INFO, thread, sizeof info, &info) < 0) {
        if (errno == ESRCH) {
            return; // killed meanwhile, by somebody else
        }
        throw failed("PTRACE_GET_SYSCALL_INFO");
    }
    if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
        Thread& caller = threads_.at(thread);
        const long number = static_cast<long>(info.entry.nr);
        const Verdict verdict = judge_({caller.path, ++caller.calls, number, caller.executable,
                                        ++caller.callsByNumber[number]});
        if (verdict.kind == Verdict::Kind::kill) {
            killAll();
            return;
        }
        if (verdict.kind == Verdict::Kind::fail) {
            failSystemCall(thread, verdict.error);
        }
    }
    resume(thread);
}

void Tracer::resume(pid_t thread, int signal) const {
    const bool stops = executing_ && (!watched_ || threads_.at(thread).path == *watched_);
    // Who was killed meanwhile is not there any more.
    ::ptrace(stops ? PTRACE_SYSCALL : PTRACE_CONT, thread, nullptr, signal);
}

void Tracer::ended(pid_t thread, int status) {
    threads_.erase(thread);
    if (thread == program_) {
        status_ = status;
        killAll();
    }
}

void Tracer::killAll() {
    killing_ = true;
    for (const auto& [thread, each] : threads_) {
        ::kill(thread, SIGKILL);
    }
    for (const pid_t thread : nameless_) {
        ::kill(thread, SIGKILL);
    }
}

} // namespace kelmar::test
