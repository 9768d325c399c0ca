#pragma once

namespace kelmar {

/// While an object exists, notes SIGINT (Ctrl-C), SIGHUP (a closed terminal) and SIGTERM instead of
/// ending the process; a second signal ends it at once. A signal that the process inherited as
/// ignored, as under nohup(1), stays ignored. At most one object at a time: signal dispositions
/// belong to the process.
class Interruption {
public:
    Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    ~Interruption();

    /// The number of the first signal, 0 before any. May be called from any thread.
    [[nodiscard]] static int signal();
};

} // namespace kelmar
