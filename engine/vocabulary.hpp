#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <variant>
#include <vector>

/// What the engine tells its caller: plain records, which `Uninstaller` repeats under its own name.
namespace kelmar::Uninstall {

/// The parts of a run, in the order in which they run.
enum class Stage {
    close,         ///< quit the app, stop its services and processes, reset its permissions
    administrator, ///< what runs with an administrator's rights
    account,       ///< the current user's installation, its receipts, settings and keychain items
    data,          ///< the chosen data folders of the current user
};

/// A stage begins.
struct StageStarted {
    Stage stage;
    friend bool operator==(const StageStarted&, const StageStarted&) = default;
};

/// A stage has ended; not sent for one that was cancelled or interrupted.
struct StageFinished {
    Stage stage;
    friend bool operator==(const StageFinished&, const StageFinished&) = default;
};

/// A step begins: a short line in the present tense, "Removing ~/Library/Kelmar".
struct Doing {
    std::string text;
    friend bool operator==(const Doing&, const Doing&) = default;
};

/// A step has finished or failed: a line of the log.
struct Log {
    std::string text;
    friend bool operator==(const Log&, const Log&) = default;
};

using Event = std::variant<StageStarted, StageFinished, Doing, Log>;

/// Something left over: an absolute path, or a label such as "Install record com.kelmar.pkg.app".
struct Failure {
    std::string path;
    std::string reason; ///< a short lower-case clause without a full stop: "it is still there"
    friend bool operator==(const Failure&, const Failure&) = default;
};

/// The run was completed; `failures` has what could not be removed.
struct Finished {
    std::vector<Failure> failures;
    friend bool operator==(const Finished&, const Finished&) = default;
};

/// The administrator's password was refused; nothing was removed.
struct Cancelled {
    friend bool operator==(const Cancelled&, const Cancelled&) = default;
};

/// The caller ended the run before it was done; what is left.
struct Interrupted {
    std::vector<Failure> failures;
    friend bool operator==(const Interrupted&, const Interrupted&) = default;
};

using Outcome = std::variant<Finished, Cancelled, Interrupted>;

/// A stage of a run and what it is called on screen.
struct TitledStage {
    Stage stage;
    std::string title;
    friend bool operator==(const TitledStage&, const TitledStage&) = default;
};

} // namespace kelmar::Uninstall

template <>
struct std::hash<kelmar::Uninstall::Failure> {
    std::size_t operator()(const kelmar::Uninstall::Failure& failure) const noexcept;
};
