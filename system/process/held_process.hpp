#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <sys/types.h>

namespace kelmar {

/// A process that is kept apart from any other that gets its number later: numbers are given out
/// again once a process has ended. Copies share what is held.
class HeldProcess {
public:
    /// Holds the process that has this number now; look at what it is afterwards, not before.
    explicit HeldProcess(pid_t process);

    [[nodiscard]] pid_t number() const { return number_; }

    /// Sends it a signal (kill(2)). False when it has ended, or when the system refuses.
    [[nodiscard]] bool signal(int signal) const;

private:
    pid_t number_;
    /// What the system knows it by besides its number; null when it was gone already.
    std::shared_ptr<const void> identity_;
};

} // namespace kelmar
