#include "tests/support/program.hpp"

#include "tests/support/pipe.hpp"

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <utility>

#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr const char* scriptName = "uninstall-as-admin.sh";

/// Copies a file into the folder `place`. Returns the copy's path.
fs::path copyTo(const fs::path& file, const fs::path& place) {
    fs::create_directories(place);
    fs::path copy = place / file.filename();
    fs::copy_file(file, copy, fs::copy_options::overwrite_existing);
    return copy;
}

} // namespace

ProgramEnd Program::run() const {
    Pipe output = makePipe();
    Pipe error = makePipe();
    const Clock::time_point start = Clock::now();
    const pid_t child = ::fork();
    if (child == 0) {
        become(output.writeEnd.get(), error.writeEnd.get());
    }
    output.writeEnd = FileDescriptor();
    error.writeEnd = FileDescriptor();
    ProgramEnd end;
    while (output.readEnd.isOpen() || error.readEnd.isOpen()) {
        const auto waited =
            std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
        if (waited > timeout && !end.timedOut) {
            end.timedOut = true;
            ::kill(child, SIGKILL);
        } else if (waited > timeout + std::chrono::seconds(2)) {
            break; // a descendant of the child holds the pipes open
        }
        std::array<pollfd, 2> ends{
            {{output.readEnd.get(), POLLIN, 0}, {error.readEnd.get(), POLLIN, 0}}};
        ::poll(ends.data(), ends.size(), 100);
        if (ends[0].revents != 0) {
            const std::string piece = readSome(output.readEnd);
            end.output += piece;
            if (onOutput && !piece.empty()) {
                onOutput(piece, std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() -
                                                                                      start));
            }
        }
        if (ends[1].revents != 0) {
            end.error += readSome(error.readEnd);
        }
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    end.status = WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    return end;
}

void Program::become(int output, int error) const {
    const FileDescriptor null(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    ::dup2(null.get(), STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(error, STDERR_FILENO);
    for (const auto& [name, value] : environment) {
        value ? ::setenv(name.c_str(), value->c_str(), 1) : ::unsetenv(name.c_str());
    }
    if (root && (::chroot(root->c_str()) != 0 || ::chdir("/") != 0)) {
        ::_exit(125);
    }
    if (user && (::setgroups(0, nullptr) != 0 || ::setgid(*user) != 0 || ::setuid(*user) != 0)) {
        ::_exit(126);
    }
    if (inChild) {
        inChild();
    }
    std::vector<char*> words{const_cast<char*>(path.c_str())};
    for (const std::string& argument : arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    ::execv(path.c_str(), words.data());
    ::_exit(127);
}

void Program::runAs(uid_t other, const std::string& place) {
    const std::string own = copyTo(path, place);
    copyTo(fs::path(path).parent_path() / scriptName, place);
    path = own;
    user = other;
}

void Program::runBeside(const std::string& script, const std::string& place) {
    path = copyTo(path, place);
    std::ofstream(fs::path(place) / scriptName) << script;
}

Program uninstaller(std::vector<std::string> arguments,
                    const std::optional<std::string>& testRoot) {
    Program program;
    program.path = KELMAR_EXECUTABLE;
    program.arguments = std::move(arguments);
    program.environment["KELMAR_UNINSTALLER_TEST_ROOT"] = testRoot;
    return program;
}

} // namespace kelmar::test
