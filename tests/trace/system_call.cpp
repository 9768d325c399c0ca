#include "tests/trace/system_call.hpp"

#include <cstdlib>
#include <memory>

#include <seccomp.h>

namespace kelmar::test {

std::string nameOf(const SystemCall& call) {
    const std::unique_ptr<char, decltype(&std::free)> name(
        ::seccomp_syscall_resolve_num_arch(::seccomp_arch_native(), static_cast<int>(call.number)),
        &std::free);
    return name ? name.get() : std::to_string(call.number);
}

std::string describe(const SystemCall& call) {
    std::string thread;
    for (const int each : call.thread) {
        thread += (thread.empty() ? "" : ".") + std::to_string(each);
    }
    return "call " + std::to_string(call.index) + " of thread " + thread + " of " +
           call.executable + ": " + nameOf(call);
}

} // namespace kelmar::test
