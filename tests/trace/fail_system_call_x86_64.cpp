#include "tests/trace/fail_system_call.hpp"

#include <cerrno>
#include <cstddef>
#include <system_error>

#include <sys/ptrace.h>
#include <sys/user.h>

namespace kelmar::test {

namespace {

void setRegister(pid_t thread, std::size_t offset, long value) {
    if (::ptrace(PTRACE_POKEUSER, thread, offset, value) != 0) {
        throw std::system_error(errno, std::generic_category(), "PTRACE_POKEUSER");
    }
}

} // namespace

bool canFailSystemCalls() {
    return true;
}

void failSystemCall(pid_t thread, int error) {
    // The kernel executes nothing for the number -1 and leaves the result alone.
    setRegister(thread, offsetof(user_regs_struct, orig_rax), -1);
    setRegister(thread, offsetof(user_regs_struct, rax), -error);
}

} // namespace kelmar::test
