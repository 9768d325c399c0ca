#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <sys/types.h>

namespace kelmar {

/// Identifies one process even after its number has been reused for another. Copies share what
/// identifies it.
class HeldProcess {
public:
    /// Identifies the process that has this number now. Check afterwards, not before, what it is.
    explicit HeldProcess(pid_t process);

    [[nodiscard]] pid_t number() const { return number_; }

    /// Sends it a signal (kill(2)). Returns false if it has ended, or if the system refuses.
    [[nodiscard]] bool signal(int signal) const;

private:
    pid_t number_;
    /// what identifies it besides its number; null if it had already gone
    std::shared_ptr<const void> identity_;
};

} // namespace kelmar
