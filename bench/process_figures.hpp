#pragma once

#include <cstdint>
#include <string>

#include <sys/types.h>

namespace kelmar::bench {

/// Memory of a process, from proc(5).
struct MemoryUse {
    double residentMiB = 0;     ///< all resident memory, shared or not
    double proportionalMiB = 0; ///< the same, with shared pages divided among their users
};

/// Ends the run if the process has ended.
MemoryUse memoryUse(pid_t process);

/// Sum over all current threads.
struct ProcessorUse {
    std::int64_t ticks = 0;    ///< processor time in clock ticks, as in proc(5)
    double milliseconds = 0;   ///< the same from the scheduler's finer clock
    std::int64_t switches = 0; ///< voluntary context switches
};

ProcessorUse processorUse(pid_t process);

/// Returns true if one of its threads has that name.
bool hasThread(pid_t process, const std::string& name);

} // namespace kelmar::bench
