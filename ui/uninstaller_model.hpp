#pragma once

#include "discovery/inventory.hpp"
#include "discovery/kelmar_paths.hpp"
#include "engine/uninstaller.hpp"
#include "ui/dispatcher.hpp"
#include "ui/log_lines.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

namespace kelmar {

class AdministratorRunner;

/// The window's state and actions, without a toolkit: scans, stores the person's choice of data,
/// measures it in the background, runs the engine, and turns the engine's events into rows, a
/// current step and a log. Create it with `std::make_shared`: its jobs hold it until they have
/// reported.
///
/// Call all operations on the main thread; the observer and the jobs' results run there as well.
class UninstallerModel : public std::enable_shared_from_this<UninstallerModel> {
public:
    struct Scanning {
        friend bool operator==(const Scanning&, const Scanning&) = default;
    };

    struct Ready {
        friend bool operator==(const Ready&, const Ready&) = default;
    };

    struct Working {
        friend bool operator==(const Working&, const Working&) = default;
    };

    struct Finished {
        std::vector<Uninstaller::Failure> failures; ///< what was left over
        friend bool operator==(const Finished&, const Finished&) = default;
    };

    /// The window's phase.
    using Phase = std::variant<Scanning, Ready, Working, Finished>;

    /// One stage of a run, as it is shown.
    struct StageRow {
        enum class State {
            pending,
            running,
            done,
        };

        Uninstaller::Stage id;
        std::string title;
        State state = State::pending;

        friend bool operator==(const StageRow&, const StageRow&) = default;
    };

    /// Everything that is shown, as one plain record.
    struct Published {
        Phase phase = Scanning{};
        Inventory inventory;                       ///< the latest scan's result
        std::set<std::string> selectedData;        ///< paths of the data folders to delete
        std::map<std::string, std::int64_t> sizes; ///< bytes of the measured data folders, by path
        std::vector<StageRow> stages;              ///< of the current or last run
        std::string detail;                        ///< what the engine is doing
        LogLines log;                              ///< of the current or last run
        std::optional<std::string> notice;   ///< about the last attempt, when it was cancelled
        bool confirmingDataDeletion = false; ///< the question before data is deleted is shown
        Inventory removed;                   ///< what was there when the run started
        std::vector<DataFolder> deletedData; ///< what was chosen when the run started

        /// The chosen data folders, in the inventory's order.
        [[nodiscard]] std::vector<DataFolder> selectedFolders() const;

        /// The bytes of all `folders`; absent until every one is measured. A sum that overflows is
        /// a broken contract.
        [[nodiscard]] std::optional<std::int64_t>
        bytes(const std::vector<DataFolder>& folders) const;

        friend bool operator==(const Published&, const Published&) = default;
    };

    /// The model's access to the machine. An empty function means the real one: `Scanner::scan`,
    /// `Scanner::size` and the engine's own choice of runner. Tests replace them.
    struct Sources {
        std::function<Inventory(const KelmarPaths&)> scan;
        std::function<std::optional<std::int64_t>(const std::string&)> size;
        std::function<std::shared_ptr<AdministratorRunner>(const KelmarPaths&)> administrator;
    };

    /// Starts nothing: see `scan`. `dispatcher` must not be null.
    UninstallerModel(KelmarPaths where, std::shared_ptr<Dispatcher> dispatcher);
    UninstallerModel(KelmarPaths where, std::shared_ptr<Dispatcher> dispatcher, Sources sources);

    const KelmarPaths paths;

    [[nodiscard]] const Published& published() const { return published_; }

    /// Returns true during a run; nothing may end the program then.
    [[nodiscard]] bool isWorking() const;

    /// Calls `observer` before each change of what is published; the new value is visible only
    /// after `observer` has returned. One observer; the next call replaces it.
    void observe(std::function<void()> observer) { observer_ = std::move(observer); }

    /// Scans in the background, then publishes the result.
    void scan();

    /// The main button: asks first if data would be deleted, else starts at once.
    void uninstallClicked();

    /// Starts a run with the current inventory and choice.
    void uninstall();

    [[nodiscard]] std::vector<DataFolder> selectedFolders() const {
        return published_.selectedFolders();
    }

    [[nodiscard]] std::optional<std::int64_t> bytes(const std::vector<DataFolder>& folders) const {
        return published_.bytes(folders);
    }

    [[nodiscard]] bool isSelected(const DataFolder& folder) const;
    void setSelected(const DataFolder& folder, bool selected);

    /// The one switch for all data: on while any folder is chosen.
    [[nodiscard]] bool deleteAllData() const;
    void setDeleteAllData(bool all);

    void setConfirmingDataDeletion(bool confirming);

private:
    /// Notifies the observer and returns the published state for a change.
    Published& change();
    void show(Inventory inventory);
    void measure(std::vector<DataFolder> folders);
    void handle(const Uninstaller::Event& event);
    void handle(const Uninstaller::Outcome& outcome);
    void setState(StageRow::State state, Uninstaller::Stage stage);

    std::shared_ptr<Dispatcher> dispatcher_;
    Sources sources_;
    std::function<void()> observer_ = [] {};
    Published published_;
    bool scanned_ = false; ///< a scan's result was shown: later scans keep the person's choice
};

} // namespace kelmar
