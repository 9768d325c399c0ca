#include "tests/support/background_program.hpp"

#include "tests/support/pipe.hpp"
#include "tests/support/timeouts.hpp"

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <utility>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

namespace {

[[noreturn]] void become(const std::string& path, std::vector<std::string>& arguments,
                         const std::map<std::string, std::string>& environment, int lineEnd) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // prctl(2): the server ends even if the test is killed
    const FileDescriptor null(::open("/dev/null", O_RDWR | O_CLOEXEC));
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        ::dup2(null.get(), stream);
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
    Pipe line = makePipe();
    line_ = std::move(line.readEnd);
    process_ = ::fork();
    if (process_ == 0) {
        become(path, arguments, environment, line.writeEnd.get());
    }
}

BackgroundProgram::~BackgroundProgram() {
    // No SIGTERM first: the program has nothing to clean up, and a test waits.
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
}

std::string BackgroundProgram::firstLine() {
    std::string text;
    for (const Deadline deadline; line_.isOpen() && !deadline.hasPassed();) {
        if (waitForInput(line_, std::chrono::milliseconds(100))) {
            text += readSome(line_);
        }
        if (const std::size_t end = text.find('\n'); end != std::string::npos) {
            return text.substr(0, end);
        }
    }
    throw std::runtime_error(path_ + " did not start");
}

} // namespace kelmar::test
