#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace kelmar {

/// Why the administrator's script did not do its work. The caller puts either case into its own
/// words.
class AdministratorError : public std::runtime_error {
public:
    enum class Kind {
        /// It could not be run or ended in failure: `what` says why, in the system's or its words.
        failed,
        /// The prompt was refused, dismissed, or could not be shown; nothing ran. `what` has what
        /// the system said of it beyond that, line by line, and is empty for a plain refusal.
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

/// Runs the administrator's script. The engine holds one without knowing which.
class AdministratorRunner {
public:
    AdministratorRunner() = default;
    AdministratorRunner(const AdministratorRunner&) = delete;
    AdministratorRunner& operator=(const AdministratorRunner&) = delete;
    virtual ~AdministratorRunner() = default;

    /// Runs the file `script` with `arguments`, each passed as exactly one argument whatever
    /// characters it holds, after asking for an administrator's password with the sentence `reason`
    /// where that is needed. Returns when the script has ended with status 0; throws
    /// AdministratorError otherwise. Blocks its thread, without a time-out; may be called from any
    /// thread.
    virtual void run(const std::string& script, const std::vector<std::string>& arguments,
                     const std::string& reason) = 0;
};

} // namespace kelmar
