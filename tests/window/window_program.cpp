#include "tests/window/window_program.hpp"

#include "tests/support/pipe.hpp"

#include <csignal>
#include <stdexcept>
#include <utility>

#include <sys/prctl.h>
#include <unistd.h>

namespace kelmar::test {

WindowProgram::WindowProgram(Program program) {
    Pipe pipe = makePipe();
    program.inChild = [end = pipe.writeEnd.get(), before = std::move(program.inChild)] {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL); // a test that is killed leaves no window behind
        const pid_t own = ::getpid();
        if (::write(end, &own, sizeof own) != sizeof own) {
            ::_exit(125);
        }
        if (before) {
            before();
        }
    };
    runner_ = std::thread([this, program = std::move(program), mine = std::move(pipe.writeEnd)] {
        end_ = program.run();
        endedAt_ = Clock::now();
        ended_ = true;
    });
    if (::read(pipe.readEnd.get(), &process_, sizeof process_) != sizeof process_) {
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
