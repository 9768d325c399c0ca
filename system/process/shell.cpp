#include "system/process/shell.hpp"

#include "system/files/reading.hpp"
#include "system/process/child_process.hpp"
#include "system/text/utf8.hpp"

#include <cerrno>
#include <system_error>

#include <sys/wait.h>

namespace kelmar::Shell {

namespace {

constexpr int signalBase = 128;

std::int32_t waitFor(pid_t process) {
    int status = 0;
    while (::waitpid(process, &status, 0) == -1) {
        if (errno != EINTR) {
            return -1;
        }
    }
    return WIFSIGNALED(status) ? signalBase + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace

Result run(const std::string& executable, const std::vector<std::string>& arguments) {
    StartedChild child = startChild(executable, arguments);
    if (child.error != 0) {
        return {-1, std::generic_category().message(child.error)};
    }
    // Reading comes before waiting: a child that fills the pipe would otherwise never end.
    std::string bytes;
    appendToEnd(child.output.get(), bytes);
    child.output = FileDescriptor();
    const std::int32_t status = waitFor(child.process);
    return {status, decodeUtf8(bytes)};
}

} // namespace kelmar::Shell
