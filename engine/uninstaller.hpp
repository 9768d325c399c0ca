#pragma once

#include "discovery/inventory.hpp"
#include "discovery/kelmar_paths.hpp"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <sys/types.h>

namespace kelmar {

class AdministratorRunner;

/// The engine: removes the product. Made for one uninstall from a scan and a choice of data, asked
/// for its `stages`, run once and dropped. `run` blocks its thread, for minutes if need be; nothing
/// here throws.
///
/// The steps are public so that each can be tested by itself; a front end calls `stages` and `run`.
/// Its administrator members are defined in the room admin/, where their subject lives.
class Uninstaller {
public:
    /// The parts of a run, in the order in which they run.
    enum class Stage {
        close,         ///< quit the app, stop its services and processes, reset its permissions
        administrator, ///< what runs with an administrator's rights
        account, ///< the current user's installation, its records, settings and keychain items
        data,    ///< the chosen data folders of the current user
    };

    /// A stage begins.
    struct StageStarted {
        Stage stage;
        friend bool operator==(const StageStarted&, const StageStarted&) = default;
    };

    /// A stage has ended; not sent for one that was cancelled.
    struct StageFinished {
        Stage stage;
        friend bool operator==(const StageFinished&, const StageFinished&) = default;
    };

    /// A step begins: a short line in the present tense, "Removing ~/Library/Kelmar".
    struct Doing {
        std::string text;
        friend bool operator==(const Doing&, const Doing&) = default;
    };

    /// A step has finished or failed: a line of the record.
    struct Log {
        std::string text;
        friend bool operator==(const Log&, const Log&) = default;
    };

    using Event = std::variant<StageStarted, StageFinished, Doing, Log>;
    using Emit = std::function<void(const Event&)>;

    /// Something left over: an absolute path, or a label such as "Install record
    /// com.kelmar.pkg.app".
    struct Failure {
        std::string path;
        std::string
            reason; ///< a short clause without capital letter and full stop: "it is still there"
        friend bool operator==(const Failure&, const Failure&) = default;
    };

    /// The run went through; what could not be removed.
    struct Finished {
        std::vector<Failure> failures;
        friend bool operator==(const Finished&, const Finished&) = default;
    };

    /// The administrator's password was refused; nothing was removed.
    struct Cancelled {
        friend bool operator==(const Cancelled&, const Cancelled&) = default;
    };

    using Outcome = std::variant<Finished, Cancelled>;

    /// A stage of a run and what it is called on screen.
    struct TitledStage {
        Stage stage;
        std::string title;
        friend bool operator==(const TitledStage&, const TitledStage&) = default;
    };

    /// A service that was stopped, and the property list that starts it again.
    struct StoppedService {
        std::string label;
        std::string plist;
        friend bool operator==(const StoppedService&, const StoppedService&) = default;
    };

    /// How the administrator step ended.
    enum class AdministratorOutcome {
        finished,
        cancelled, ///< nothing ran
        failed,    ///< the script could not be run, or failed as a whole; a failure was recorded
    };

    /// `chosenData` holds the paths of the data folders to delete. Without a `runner` the script
    /// runs as the current user under a test root, and behind the system's password prompt
    /// otherwise.
    Uninstaller(KelmarPaths where, Inventory found, std::set<std::string> chosenData,
                std::shared_ptr<AdministratorRunner> runner = nullptr);

    const KelmarPaths paths;
    const Inventory inventory;
    const std::set<std::string> selectedData;
    const std::shared_ptr<AdministratorRunner> administrator;
    Emit emit = [](const Event&) {};
    std::vector<Failure> failures;
    std::vector<StoppedService> stoppedServices;

    /// The stages that a run will have, in order; computed afresh at every call.
    [[nodiscard]] std::vector<TitledStage> stages() const;

    /// The whole uninstall. `callback` is called during the run only, never twice at once: on this
    /// thread, or, while this thread waits for the administrator's script, on the thread that
    /// follows its progress.
    Outcome run(Emit callback);

    // Closing. What could not be done is logged, never a failure: verification finds what is left.

    /// Quits the app: a polite request and 20 seconds, SIGTERM and 10, a forced quit and 5.
    void quitKelmar();
    /// Boots the loaded services out of this login session and remembers them.
    void stopServices();
    /// Ends the current user's processes that run from inside `folders`.
    void stopProcesses(const std::vector<std::string>& folders);
    /// Starts again what `stopServices` stopped, as far as it is still installed.
    void restartStoppedServices();
    static std::vector<pid_t> processes(const std::vector<std::string>& folders);
    /// Whether all of `processes` have gone, now or within `seconds`. One of another user's still
    /// is there.
    static bool waitForExit(const std::vector<pid_t>& processes, double seconds);

    // Removing.

    /// Deletes a file, link or folder with everything in it; records a failure when it is still
    /// there then.
    void remove(const std::string& path);
    /// Makes the package installer forget an install record of the home volume.
    void forgetReceipt(const std::string& identifier);
    /// Deletes the settings and the keychain items that the scan found.
    void removeSettings();
    /// Deletes a folder when nothing that matters is left in it.
    void removeIfEmpty(const std::string& path);
    /// Resets the privacy permissions that the system granted the app.
    void resetPermissions();

    /// Scans again: what is still there, and why as far as it is known. Changes nothing, sends
    /// nothing.
    [[nodiscard]] std::vector<Failure> verify() const;

    // The administrator step, defined in admin/.

    /// The script's arguments but for "--status"; absent when an administrator has nothing to do.
    [[nodiscard]] std::optional<std::vector<std::string>> administratorArguments() const;
    /// The sentence that the password prompt shows.
    [[nodiscard]] std::string administratorReason() const;
    /// The chosen folders of the user's own data roots, which no administrator is needed for.
    [[nodiscard]] std::vector<DataFolder> mySelectedData() const;
    /// Runs the script and follows its progress.
    AdministratorOutcome runAsAdministrator(const std::vector<std::string>& arguments);

private:
    void doing(std::string text) const { emit(Doing{std::move(text)}); }

    void log(std::string text) const { emit(Log{std::move(text)}); }

    void handleStatusLine(std::string_view line);
};

} // namespace kelmar

template <>
struct std::hash<kelmar::Uninstaller::Failure> {
    std::size_t operator()(const kelmar::Uninstaller::Failure& failure) const noexcept;
};
