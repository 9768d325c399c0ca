#include "tests/trace/fail_system_call.hpp"

#include <cerrno>
#include <system_error>

namespace kelmar::test {

bool canFailSystemCalls() {
    return false;
}

void failSystemCall(pid_t /*thread*/, int /*error*/) {
    throw std::system_error(ENOTSUP, std::generic_category(), "failing a system call");
}

} // namespace kelmar::test
