#include "tests/support/pipe.hpp"

#include <array>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <poll.h>

namespace kelmar::test {

Pipe makePipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe2");
    }
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

std::string readSome(FileDescriptor& from) {
    std::array<char, 65536> buffer{};
    const ssize_t count = ::read(from.get(), buffer.data(), buffer.size());
    if (count <= 0) {
        from = FileDescriptor();
        return {};
    }
    return {buffer.data(), static_cast<std::size_t>(count)};
}

bool waitForInput(const FileDescriptor& from, std::chrono::milliseconds timeout) {
    pollfd end{from.get(), POLLIN, 0};
    return ::poll(&end, 1, static_cast<int>(timeout.count())) > 0;
}

} // namespace kelmar::test
