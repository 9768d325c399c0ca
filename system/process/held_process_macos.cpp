#include "system/process/held_process.hpp"

#include <csignal>

#include <libproc.h>
#include <sys/proc_info.h>

namespace kelmar {

namespace {

/// When a process started; together with its number this identifies one process. macOS has no
/// handle that would hold one.
struct Start {
    std::uint64_t seconds = 0;
    std::uint64_t microseconds = 0;
    friend bool operator==(const Start&, const Start&) = default;
};

std::optional<Start> startOf(pid_t process) {
    proc_bsdinfo information{};
    const int size = ::proc_pidinfo(process, PROC_PIDTBSDINFO, 0, &information, sizeof information);
    if (size != static_cast<int>(sizeof information)) {
        return std::nullopt;
    }
    return Start{information.pbi_start_tvsec, information.pbi_start_tvusec};
}

} // namespace

HeldProcess::HeldProcess(pid_t process) : number_(process) {
    if (const std::optional<Start> start = startOf(process)) {
        identity_ = std::make_shared<Start>(*start);
    }
}

bool HeldProcess::signal(int signal) const {
    const auto* const start = static_cast<const Start*>(identity_.get());
    return start != nullptr && startOf(number_) == *start && ::kill(number_, signal) == 0;
}

} // namespace kelmar
