#include "system/files/reading.hpp"

#include <algorithm>
#include <array>
#include <cerrno>

#include <unistd.h>

namespace kelmar {

namespace {

constexpr std::size_t bufferSize = 16384;

} // namespace

ssize_t readOnce(int descriptor, std::string& bytes, std::size_t size) {
    // NOLINTNEXTLINE(*-member-init): filled by the system before it is read
    std::array<char, bufferSize> buffer;
    ssize_t count = -1;
    do {
        count = ::read(descriptor, buffer.data(), std::min(size, buffer.size()));
    } while (count < 0 && errno == EINTR);
    if (count > 0) {
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return count;
}

bool appendToEnd(int descriptor, std::string& bytes, std::size_t limit) {
    while (limit != 0) {
        const ssize_t count = readOnce(descriptor, bytes, limit);
        if (count <= 0) {
            return count == 0;
        }
        limit -= static_cast<std::size_t>(count);
    }
    return true;
}

void dropToEnd(int descriptor) {
    std::string dropped;
    while (readOnce(descriptor, dropped, bufferSize) > 0) {
        dropped.clear();
    }
}

} // namespace kelmar
