#include "system/files/reading.hpp"

#include <algorithm>
#include <array>
#include <cerrno>

#include <unistd.h>

namespace kelmar {

bool appendToEnd(int descriptor, std::string& bytes, std::size_t limit) {
    constexpr std::size_t bufferSize = 16384;
    // NOLINTNEXTLINE(*-member-init): filled by the system before it is read
    std::array<char, bufferSize> buffer;
    while (limit != 0) {
        const ssize_t count = ::read(descriptor, buffer.data(), std::min(limit, buffer.size()));
        if (count > 0) {
            bytes.append(buffer.data(), static_cast<std::size_t>(count));
            limit -= static_cast<std::size_t>(count);
        } else if (count == 0) {
            return true;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

} // namespace kelmar
