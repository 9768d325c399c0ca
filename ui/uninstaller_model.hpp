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

/// What the window knows and does, without a toolkit: scans, keeps the person's choice of data,
/// measures it in the background, runs the engine, and turns what the engine says into rows, a
/// line and a record. Made through `std::make_shared`, since its jobs hold it until they have
/// reported.
///
/// All operations are called on the main thread; so are the observer and everything that the jobs
/// hand back.
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

    /// Where the window stands.
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
        bool confirmingDataDeletion = false; ///< the question before data is deleted is to be shown
        Inventory removed;                   ///< what was there when the run started
        std::vector<DataFolder> deletedData; ///< what was chosen when the run started

        /// The chosen ones of the inventory's data folders, in its order.
        [[nodiscard]] std::vector<DataFolder> selectedFolders() const;

        /// The bytes of all `folders`; absent while one of them is not measured. A sum that does
        /// not fit is a broken contract.
        [[nodiscard]] std::optional<std::int64_t>
        bytes(const std::vector<DataFolder>& folders) const;

        friend bool operator==(const Published&, const Published&) = default;
    };

    /// What the model asks of the machine. An empty function stands for the real one:
    /// `Scanner::scan`, `Scanner::size` and the engine's own choice of runner. Tests put their own
    /// answers here.
    struct Sources {
        std::function<Inventory(const KelmarPaths&)> scan;
        std::function<std::optional<std::int64_t>(const std::string&)> size;
        std::function<std::shared_ptr<AdministratorRunner>(const KelmarPaths&)> administrator;
    };

    /// Starts nothing: see `scan`. `dispatcher` is not null.
    UninstallerModel(KelmarPaths where, std::shared_ptr<Dispatcher> dispatcher);
    UninstallerModel(KelmarPaths where, std::shared_ptr<Dispatcher> dispatcher, Sources sources);

    const KelmarPaths paths;

    [[nodiscard]] const Published& published() const { return published_; }

    /// A run is going on: nothing may end the program.
    [[nodiscard]] bool isWorking() const;

    /// `observer` is called before each change of what is published: the change itself is seen
    /// only after it has returned. One observer; the next call takes its place.
    void observe(std::function<void()> observer) { observer_ = std::move(observer); }

    /// Looks at the machine in the background, then shows what is there.
    void scan();

    /// The main button: asks first when data is to be deleted, else starts at once.
    void uninstallClicked();

    /// Starts a run on what is shown and chosen now.
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
    /// What is published, to be changed: the observer has been told.
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
    bool scanned_ = false; ///< a scan's result has been shown: the choice is the person's from then
};

} // namespace kelmar
