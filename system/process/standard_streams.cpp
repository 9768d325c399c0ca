#include "system/process/standard_streams.hpp"

#include <cerrno>
#include <string>

#include <poll.h>
#include <unistd.h>

namespace kelmar {

namespace {

bool writeLine(int descriptor, std::string_view line) {
    std::string text(line);
    text.push_back('\n');
    std::string_view rest = text;
    while (!rest.empty()) {
        const ssize_t written = ::write(descriptor, rest.data(), rest.size());
        if (written >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            // Another process made the shared open file non-blocking: wait as a blocking write
            // would.
            pollfd stream{descriptor, POLLOUT, 0};
            ::poll(&stream, 1, -1);
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

} // namespace

bool printLine(std::string_view line) {
    return writeLine(STDOUT_FILENO, line);
}

bool printErrorLine(std::string_view line) {
    return writeLine(STDERR_FILENO, line);
}

} // namespace kelmar
