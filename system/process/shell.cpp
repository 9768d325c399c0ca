#include "system/process/shell.hpp"

#include "system/process/child_process.hpp"
#include "system/text/utf8.hpp"

#include <array>
#include <cerrno>
#include <system_error>

#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::Shell {

namespace {

constexpr int signalBase = 128;
constexpr std::size_t bufferSize = 16384;

std::string readToEnd(int descriptor) {
    std::string bytes;
    // NOLINTNEXTLINE(*-member-init): filled by the system before it is read
    std::array<char, bufferSize> buffer;
    while (true) {
        const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
        if (count > 0) {
            bytes.append(buffer.data(), static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            return bytes;
        }
    }
}

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
    const StartedChild child = startChild(executable, arguments);
    if (child.error != 0) {
        return {-1, std::generic_category().message(child.error)};
    }
    // Reading comes before waiting: a child that fills the pipe would otherwise never end.
    const std::string bytes = readToEnd(child.output);
    ::close(child.output);
    const std::int32_t status = waitFor(child.process);
    return {status, decodeUtf8(bytes)};
}

} // namespace kelmar::Shell
