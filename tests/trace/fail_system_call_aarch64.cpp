#include "tests/trace/fail_system_call.hpp"

#include <cerrno>
#include <system_error>

#include <elf.h>
#include <sys/ptrace.h>
#include <sys/uio.h>
#include <sys/user.h>

namespace kelmar::test {

namespace {

/// PTRACE_GETREGSET and PTRACE_SETREGSET of one set, as large as `Registers`.
template <class Registers>
void transfer(__ptrace_request request, pid_t thread, unsigned set, Registers& registers) {
    iovec place{&registers, sizeof registers};
    if (::ptrace(request, thread, set, &place) != 0) {
        throw std::system_error(errno, std::generic_category(), "registers of a traced thread");
    }
}

} // namespace

bool canFailSystemCalls() {
    return true;
}

void failSystemCall(pid_t thread, int error) {
    // The kernel executes nothing for the number -1 and leaves the result, in x0, alone.
    int number = -1;
    transfer(PTRACE_SETREGSET, thread, NT_ARM_SYSTEM_CALL, number);
    user_regs_struct registers{};
    transfer(PTRACE_GETREGSET, thread, NT_PRSTATUS, registers);
    registers.regs[0] = static_cast<unsigned long long>(-error);
    transfer(PTRACE_SETREGSET, thread, NT_PRSTATUS, registers);
}

} // namespace kelmar::test
