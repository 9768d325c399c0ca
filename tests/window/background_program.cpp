#include "tests/window/background_program.hpp"

#include "tests/window/patience.hpp"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

namespace {

[[noreturn]] void become(const std::string& path, std::vector<std::string>& arguments,
                         const std::map<std::string, std::string>& environment, int lineEnd) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // prctl(2): a test that is killed leaves no server behind
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        ::dup2(::open("/dev/null", O_RDWR | O_CLOEXEC), stream);
    }
    const int descriptor = BackgroundProgram::descriptor[0] - '0';
    if (lineEnd == descriptor) {
        ::fcntl(descriptor, F_SETFD, 0);
    } else {
        ::dup2(lineEnd, descriptor);
    }
    for (const auto& [name, value] : environment) {
        ::setenv(name.c_str(), value.c_str(), 1);
    }
    std::vector<char*> list{const_cast<char*>(path.c_str())};
    for (std::string& argument : arguments) {
        list.push_back(argument.data());
    }
    list.push_back(nullptr);
    ::execv(path.c_str(), list.data());
    ::_exit(127);
}

} // namespace

BackgroundProgram::BackgroundProgram(const std::string& path, std::vector<std::string> arguments,
                                     const std::map<std::string, std::string>& environment)
    : path_(path) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe2");
    }
    line_ = FileDescriptor(ends[0]);
    const FileDescriptor lineEnd(ends[1]);
    process_ = ::fork();
    if (process_ == 0) {
        become(path, arguments, environment, lineEnd.get());
    }
}

BackgroundProgram::~BackgroundProgram() {
    // Not asked politely: none of them has anything to put in order, and a test waits.
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
}

std::string BackgroundProgram::firstLine() const {
    std::string line;
    const Deadline deadline;
    while (!deadline.hasPassed()) {
        pollfd end{line_.get(), POLLIN, 0};
        if (::poll(&end, 1, 100) <= 0) {
            continue;
        }
        char character = 0;
        if (::read(line_.get(), &character, 1) != 1) {
            break;
        }
        if (character == '\n') {
            return line;
        }
        line += character;
    }
    throw std::runtime_error(path_ + " did not start");
}

} // namespace kelmar::test
