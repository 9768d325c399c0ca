#pragma once

#include "discovery/inventory.hpp"
#include "discovery/kelmar_paths.hpp"
#include "engine/vocabulary.hpp"
#include "system/files/app_management.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace kelmar {

class AdministratorRunner;

/// The engine: removes the product. Made for one uninstall from a scan and a choice of data, asked
/// for its `stages`, run once and dropped. `run` blocks its thread, for minutes if need be; nothing
/// here throws.
///
/// The steps are public so that each can be tested by itself; a front end calls `stages` and `run`.
class Uninstaller {
public:
    using Stage = Uninstall::Stage;
    using StageStarted = Uninstall::StageStarted;
    using StageFinished = Uninstall::StageFinished;
    using Doing = Uninstall::Doing;
    using Log = Uninstall::Log;
    using Event = Uninstall::Event;
    using Failure = Uninstall::Failure;
    using Finished = Uninstall::Finished;
    using Cancelled = Uninstall::Cancelled;
    using Interrupted = Uninstall::Interrupted;
    using Outcome = Uninstall::Outcome;
    using TitledStage = Uninstall::TitledStage;
    using Emit = std::function<void(const Event&)>;
    using ShouldEnd = std::function<bool()>;

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

    /// `chosenData` holds the paths of the data folders to delete. Without a `runner` it is the
    /// usual one.
    Uninstaller(KelmarPaths where, Inventory found, std::set<std::string> chosenData,
                std::shared_ptr<AdministratorRunner> runner = nullptr);

    /// The runner of a real uninstall: the system's password prompt, or under a test root the
    /// current user, who is asked for nothing.
    static std::shared_ptr<AdministratorRunner> usualRunner(const KelmarPaths& paths);

    const KelmarPaths paths;
    const Inventory inventory;
    const std::set<std::string> selectedData;
    const std::shared_ptr<AdministratorRunner> administrator;
    Emit emit = [](const Event&) {};
    std::vector<Failure> failures;
    std::vector<StoppedService> stoppedServices;
    /// Where the system lets a person allow the removal of apps; empty where it asks for nothing.
    std::string appManagement = appManagementSettings();

    /// The stages that a run will have, in order; computed afresh at every call.
    [[nodiscard]] std::vector<TitledStage> stages() const;

    /// The whole uninstall. `callback` is called during the run only, never twice at once: on this
    /// thread, or, while this thread waits for the administrator's script, on the thread that
    /// follows its progress.
    ///
    /// `shouldEnd` is asked before each step. Once it answers true, no further step begins,
    /// services that were stopped are started again if nothing has been removed yet, and the
    /// outcome is `Interrupted`; that is an outcome only of a run that skipped a step or left
    /// something.
    ///
    /// Where memory runs out, also inside the callback, the run ends there: `Finished`, with that
    /// as a failure.
    Outcome run(Emit callback, ShouldEnd shouldEnd = nullptr);

    /// Removes the folders that killed runs left among this user's temporary files, see
    /// `StatusFolder`. `run` begins with it; a front end calls it where nothing is there to run
    /// for.
    static void sweepTemporaryFolder(const KelmarPaths& paths);

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

    // The administrator step.

    /// The script's arguments but for "--status"; absent when an administrator has nothing to do.
    [[nodiscard]] std::optional<std::vector<std::string>> administratorArguments() const;
    /// The sentence that the password prompt shows.
    [[nodiscard]] std::string administratorReason() const;
    /// The chosen folders of the user's own data roots, which no administrator is needed for.
    [[nodiscard]] std::vector<DataFolder> mySelectedData() const;
    /// Runs the script and follows its progress.
    AdministratorOutcome runAsAdministrator(const std::vector<std::string>& arguments);

private:
    Outcome runStages();
    /// One stage of a run; false when it was cancelled.
    bool perform(Stage stage);
    /// Whether the run ends before the next step; once true, it stays so.
    bool ends();
    void closeKelmar();
    void cleanAccount();
    void deleteData();

    void doing(std::string text) const { emit(Doing{std::move(text)}); }

    void log(std::string text) const { emit(Log{std::move(text)}); }

    /// What can be known to stay before anybody gives a password for it.
    void logWhatNoPasswordHelps() const;
    void handleStatusLine(std::string_view line);

    /// Logs once where to allow the removal of an app, when that is what a failure may come from.
    void adviseOnAppManagement(std::string_view path, std::string_view reason);

    ShouldEnd shouldEnd_;
    bool ended_ = false;
    bool removing_ = false; ///< a removal has begun: there is no way back
    bool hasAdvisedOnAppManagement_ = false;
};

} // namespace kelmar
