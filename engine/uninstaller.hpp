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

/// The engine: removes the product. Construct it for one uninstall, from a scan and a choice of
/// data; read its `stages`, call `run` once, and destroy it. `run` blocks its thread, possibly for
/// minutes. Nothing here throws.
///
/// The steps are public so that tests can call each one; a front end calls `stages` and `run`.
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

    /// A service that was stopped, and the property list with which to start it again.
    struct StoppedService {
        std::string label;
        std::string plist;
        friend bool operator==(const StoppedService&, const StoppedService&) = default;
    };

    /// How the administrator step ended.
    enum class AdministratorOutcome {
        finished,
        cancelled, ///< nothing ran
        failed,    ///< the script could not be run, or failed as a whole; a failure was added
    };

    /// `chosenData` holds the paths of the data folders to delete. If `runner` is null,
    /// `usualRunner` is used.
    Uninstaller(KelmarPaths where, Inventory found, std::set<std::string> chosenData,
                std::shared_ptr<AdministratorRunner> runner = nullptr);

    /// The runner of a real uninstall: the system's password prompt. Under a test root: the current
    /// user, without a prompt.
    static std::shared_ptr<AdministratorRunner> usualRunner(const KelmarPaths& paths);

    const KelmarPaths paths;
    const Inventory inventory;
    const std::set<std::string> selectedData;
    const std::shared_ptr<AdministratorRunner> administrator;
    Emit emit = [](const Event&) {};
    std::vector<Failure> failures;
    std::vector<StoppedService> stoppedServices;
    /// Where in the system's settings to allow the removal of apps; empty if the system needs no
    /// permission.
    std::string appManagement = appManagementSettings();

    /// The stages that a run will have, in order; computed at every call.
    [[nodiscard]] std::vector<TitledStage> stages() const;

    /// Runs the whole uninstall. Calls `callback` only while it runs, and never concurrently: on
    /// this thread, or, while this thread waits for the administrator's script, on the thread that
    /// follows the script's progress.
    ///
    /// Calls `shouldEnd` before each step. Once it returns true, no further step begins, and
    /// stopped services are started again if nothing has been removed yet. The outcome is then
    /// `Interrupted`, provided that a step was skipped or something is left.
    ///
    /// If memory runs out, in the callback too, the run ends there with `Finished` and a failure
    /// that says so.
    Outcome run(Emit callback, ShouldEnd shouldEnd = nullptr);

    /// Removes the folders that killed runs left among this user's temporary files, see
    /// `StatusFolder`. `run` starts with it; a front end calls it if there is nothing to run for.
    static void sweepTemporaryFolder(const KelmarPaths& paths);

    // Closing. What could not be closed is logged, never a failure: verification finds what is
    // left.

    /// Quits the app: a polite request and 20 seconds, SIGTERM and 10, a forced quit and 5.
    void quitKelmar();
    /// Boots the loaded services out of this login session and remembers them.
    void stopServices();
    /// Ends the current user's processes that run from inside `folders`.
    void stopProcesses(const std::vector<std::string>& folders);
    /// Starts again the services that `stopServices` stopped, if they are still installed.
    void restartStoppedServices();
    static std::vector<pid_t> processes(const std::vector<std::string>& folders);
    /// Returns true once all of `processes` have ended, false if one is left after `seconds`.
    /// Another user's process counts as running.
    static bool waitForExit(const std::vector<pid_t>& processes, double seconds);

    // Removing.

    /// Deletes a file, a symlink, or a folder with everything in it; adds a failure if it still
    /// exists afterwards.
    void remove(const std::string& path);
    /// Makes the package installer forget a receipt on the home volume.
    void forgetReceipt(const std::string& identifier);
    /// Deletes the settings and the keychain items that the scan found.
    void removeSettings();
    /// Deletes a folder if it holds nothing but ignorable files.
    void removeIfEmpty(const std::string& path);
    /// Resets the privacy permissions that the system granted the app.
    void resetPermissions();

    /// Scans again: what is left, and why, if known. Changes nothing and sends no event.
    [[nodiscard]] std::vector<Failure> verify() const;

    // The administrator step.

    /// The script's arguments except "--status"; absent if there is nothing for an administrator to
    /// do.
    [[nodiscard]] std::optional<std::vector<std::string>> administratorArguments() const;
    /// The sentence that the password prompt shows.
    [[nodiscard]] std::string administratorReason() const;
    /// The chosen folders of the user's own data roots, which need no administrator.
    [[nodiscard]] std::vector<DataFolder> mySelectedData() const;
    /// Runs the script and follows its progress.
    AdministratorOutcome runAsAdministrator(const std::vector<std::string>& arguments);

private:
    Outcome runStages();
    /// Performs one stage of a run; returns false if it was cancelled.
    bool perform(Stage stage);
    /// Returns true if the run ends before the next step; once true, it stays true.
    bool ends();
    void closeKelmar();
    void cleanAccount();
    void deleteData();

    void doing(std::string text) const { emit(Doing{std::move(text)}); }

    void log(std::string text) const { emit(Log{std::move(text)}); }

    /// Logs what no password can remove, before anybody is asked for one.
    void logWhatNoPasswordHelps() const;
    void handleStatusLine(std::string_view line);

    /// Logs once where to allow the removal of an app, if the failure may come from that.
    void adviseOnAppManagement(std::string_view path, std::string_view reason);

    ShouldEnd shouldEnd_;
    bool ended_ = false;
    bool removing_ = false; ///< a removal has begun: the run can no longer be undone
    bool hasAdvisedOnAppManagement_ = false;
};

} // namespace kelmar
