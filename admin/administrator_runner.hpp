#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace kelmar {

/// Why the administrator's script did not do its work. The caller words the message for either
/// case.
class AdministratorError : public std::runtime_error {
public:
    enum class Kind {
        /// The script could not be started, or it failed. `what` has the reason, as the system or
        /// the script worded it.
        failed,
        /// The prompt was refused, dismissed, or could not be shown; nothing ran. `what` has any
        /// further message of the system, line by line, and is empty for a plain refusal.
        cancelled,
    };

    static AdministratorError failed(const std::string& why) { return {Kind::failed, why}; }

    static AdministratorError cancelled(const std::string& words = "") {
        return {Kind::cancelled, words};
    }

    [[nodiscard]] Kind kind() const { return kind_; }

private:
    AdministratorError(Kind kind, const std::string& what)
        : std::runtime_error(what),
          kind_(kind) {}

    Kind kind_;
};

/// Runs the administrator's script. The engine depends on this interface only.
class AdministratorRunner {
public:
    AdministratorRunner() = default;
    AdministratorRunner(const AdministratorRunner&) = delete;
    AdministratorRunner& operator=(const AdministratorRunner&) = delete;
    virtual ~AdministratorRunner() = default;

    /// Runs the file `script` with `arguments`, after asking for an administrator's password with
    /// the sentence `reason` where one is needed. Each argument arrives unchanged, whatever
    /// characters it holds. Returns when the script has ended with status 0; throws
    /// AdministratorError otherwise. Blocks the calling thread, without a timeout; may be called
    /// from any thread.
    virtual void run(const std::string& script, const std::vector<std::string>& arguments,
                     const std::string& reason) = 0;
};

} // namespace kelmar
