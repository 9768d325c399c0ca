#include "tests/window/window_program.hpp"

#include "system/files/file_descriptor.hpp"

#include <array>
#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace kelmar::test {

WindowProgram::WindowProgram(Program program) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe2");
    }
    const FileDescriptor readEnd(ends[0]);
    FileDescriptor writeEnd(ends[1]);
    program.inChild = [end = writeEnd.get(), before = std::move(program.inChild)] {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL); // a test that is killed leaves no window behind
        const pid_t own = ::getpid();
        if (::write(end, &own, sizeof own) != sizeof own) {
            ::_exit(125);
        }
        if (before) {
            before();
        }
    };
    runner_ = std::thread([this, program = std::move(program), mine = std::move(writeEnd)] {
        end_ = program.run();
        endedAt_ = Clock::now();
        ended_ = true;
    });
    if (::read(readEnd.get(), &process_, sizeof process_) != sizeof process_) {
        runner_.join();
        throw std::runtime_error("the program did not start");
    }
}

WindowProgram::~WindowProgram() {
    if (runner_.joinable()) {
        if (!ended_) {
            ::kill(process_, SIGKILL);
        }
        runner_.join();
    }
}

const ProgramEnd& WindowProgram::end() {
    if (runner_.joinable()) {
        runner_.join();
    }
    return end_;
}

} // namespace kelmar::test
