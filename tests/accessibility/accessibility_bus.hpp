#pragma once

#include "tests/accessibility/accessible.hpp"
#include "tests/support/background_program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <memory>
#include <optional>
#include <string>

#include <sys/types.h>

namespace kelmar::test {

/// The bus on which programs show screen readers what they show on the screen, with this process as
/// the screen reader. There is one for all tests of a process, and nobody else is on it.
class AccessibilityBus {
public:
    /// Why there can be no such bus on this machine; nothing if there can.
    static std::optional<std::string> skipReason();

    /// Starts it when it is asked for the first time.
    static AccessibilityBus& instance();

    /// What programs of any user reach it by, from any root folder.
    [[nodiscard]] const std::string& address() const { return address_; }

    /// What the program of that process shows; null until it shows anything.
    [[nodiscard]] Accessible program(pid_t process) const;

    /// Dispatches the events that programs have sent since the last time.
    static void dispatchEvents();

private:
    AccessibilityBus();

    TemporaryFolder folder_;
    std::unique_ptr<BackgroundProgram> bus_;
    std::unique_ptr<BackgroundProgram> registry_;
    std::string address_;
};

} // namespace kelmar::test
