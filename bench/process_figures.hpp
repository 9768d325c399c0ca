#pragma once

#include <cstdint>
#include <string>

#include <sys/types.h>

namespace kelmar::bench {

/// What proc(5) says of a process.
struct MemoryUse {
    double residentMiB = 0;     ///< all that is in memory for it, whoever else uses it
    double proportionalMiB = 0; ///< the same, what is shared divided among its users
};

/// Ends the run when there is no such process any more.
MemoryUse memoryUse(pid_t process);

/// Of all threads that there are.
struct ProcessorUse {
    std::int64_t ticks = 0;    ///< of the clock, as proc(5) counts processor time
    double milliseconds = 0;   ///< the same time by the scheduler's own, finer clock
    std::int64_t switches = 0; ///< how often one of the threads went to sleep
};

ProcessorUse processorUse(pid_t process);

/// Whether one of its threads has that name.
bool hasThread(pid_t process, const std::string& name);

} // namespace kelmar::bench
