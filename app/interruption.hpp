#pragma once

namespace kelmar {

/// Takes note of SIGINT (Ctrl-C), SIGHUP (a closed terminal) and SIGTERM for as long as it lives,
/// instead of ending the process at the first; a second one ends it at once. A signal that the
/// caller ignores, as nohup(1) does with SIGHUP, stays ignored. One object at a time: how a process
/// takes signals is its own, not an object's.
class Interruption {
public:
    Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    ~Interruption();

    /// The number of the first signal that came, 0 before any. May be called from any thread.
    [[nodiscard]] static int signal();
};

} // namespace kelmar
