#include "tests/trace/trace.hpp"

#include "system/files/file_descriptor.hpp"
#include "tests/trace/fail_system_call.hpp"
#include "tests/trace/tracer.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <future>
#include <optional>
#include <system_error>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" { // which the header of glibc 2.36 leaves out
#include <sys/pidfd.h>
}

namespace kelmar::test {

namespace {

/// A descriptor, or the reason why there is none.
FileDescriptor opened(int descriptor, const char* what) {
    if (descriptor < 0) {
        throw std::system_error(errno, std::generic_category(), what);
    }
    return FileDescriptor(descriptor);
}

std::string contentsOf(const FileDescriptor& file) {
    struct stat about {};

    ::fstat(file.get(), &about);
    std::string contents(static_cast<std::size_t>(about.st_size), '\0');
    const ssize_t count = ::pread(file.get(), contents.data(), contents.size(), 0);
    contents.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return contents;
}

/// A child that becomes the program when its gate is closed.
struct WaitingChild {
    pid_t process = -1;
    FileDescriptor gate;
};

WaitingChild startWaiting(const Program& program, const FileDescriptor& output,
                          const FileDescriptor& error) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe2");
    }
    FileDescriptor readEnd(ends[0]);
    WaitingChild child{-1, FileDescriptor(ends[1])};
    child.process = ::fork();
    if (child.process == 0) {
        child.gate = FileDescriptor();
        char nothing = 0;
        while (::read(readEnd.get(), &nothing, 1) != 0) {
        }
        program.become(output.get(), error.get());
    }
    if (child.process < 0) {
        throw std::system_error(errno, std::generic_category(), "fork");
    }
    return child;
}

/// A program built with the leak checker is traced by that at its end, and can't be by two.
Program withoutLeakChecker(Program program) {
    std::optional<std::string>& options = program.environment["ASAN_OPTIONS"];
    const char* const inherited = std::getenv("ASAN_OPTIONS");
    options = options.value_or(inherited != nullptr ? inherited : "") + ":detect_leaks=0";
    return program;
}

ProgramEnd run(const Program& program, Tracer tracer) {
    const FileDescriptor output = opened(::memfd_create("output", MFD_CLOEXEC), "memfd_create");
    const FileDescriptor error = opened(::memfd_create("error", MFD_CLOEXEC), "memfd_create");
    WaitingChild child = startWaiting(withoutLeakChecker(program), output, error);
    const FileDescriptor process = opened(::pidfd_open(child.process, 0), "pidfd_open");
    // On a thread of its own: a tracer is a thread.
    std::future<int> status = std::async(std::launch::async, [&] {
        tracer.seize(child.process);
        child.gate = FileDescriptor();
        return tracer.follow();
    });
    ProgramEnd end;
    if (status.wait_for(program.timeout) == std::future_status::timeout) {
        end.timedOut = true;
        ::pidfd_send_signal(process.get(), SIGKILL, nullptr, 0);
    }
    try {
        const int ended = status.get();
        end.status = WIFSIGNALED(ended) ? -WTERMSIG(ended) : WEXITSTATUS(ended);
    } catch (...) {
        // The others were killed when their tracer ended; this one may not have been seized.
        ::pidfd_send_signal(process.get(), SIGKILL, nullptr, 0);
        ::waitpid(child.process, nullptr, 0);
        throw;
    }
    end.output = contentsOf(output);
    end.error = contentsOf(error);
    return end;
}

} // namespace

ProgramEnd trace(const Program& program, Follow follow, const Judge& judge) {
    return run(program, Tracer(follow, judge));
}

std::string whyNotTraced() {
    Program nothing;
    nothing.path = "/bin/true";
    try {
        return record(nothing, Follow::processes).calls.empty() ? "no system call was seen" : "";
    } catch (const std::system_error& error) {
        return std::string("this machine lets nobody trace: ") + error.what();
    }
}

std::string whyNoneFails() {
    return canFailSystemCalls() ? whyNotTraced()
                                : "not written for this architecture: fail_system_call.hpp";
}

Recording record(const Program& program, Follow follow) {
    Recording recording;
    recording.end = trace(program, follow, [&calls = recording.calls](const SystemCall& call) {
        calls.push_back(call);
        return Verdict{};
    });
    std::sort(recording.calls.begin(), recording.calls.end());
    return recording;
}

Struck strike(const Program& program, Follow follow, const SystemCall& recorded, Verdict verdict) {
    Struck struck;
    const auto judge = [&](const SystemCall& call) {
        const bool same = call.number == recorded.number && call.occurrence == recorded.occurrence;
        struck.came = struck.came || same;
        return same ? verdict : Verdict{};
    };
    struck.end = run(program, Tracer(follow, judge, recorded.thread));
    return struck;
}

} // namespace kelmar::test
