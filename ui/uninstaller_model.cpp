#include "ui/uninstaller_model.hpp"

#include "discovery/scanner.hpp"
#include "system/process/contract.hpp"

#include <algorithm>
#include <utility>

namespace kelmar {

namespace {

std::set<std::string> pathsOf(const std::vector<DataFolder>& folders) {
    std::set<std::string> set;
    for (const DataFolder& folder : folders) {
        set.insert(folder.path);
    }
    return set;
}

} // namespace

std::vector<DataFolder> UninstallerModel::Published::selectedFolders() const {
    return inventory.selected(selectedData);
}

std::optional<std::int64_t>
UninstallerModel::Published::bytes(const std::vector<DataFolder>& folders) const {
    std::int64_t sum = 0;
    for (const DataFolder& folder : folders) {
        const auto size = sizes.find(folder.path);
        if (size == sizes.end()) {
            return std::nullopt;
        }
        if (__builtin_add_overflow(sum, size->second, &sum)) {
            brokenContract("the sizes of the data folders add up to more than 2^63 bytes");
        }
    }
    return sum;
}

UninstallerModel::UninstallerModel(KelmarPaths where, std::shared_ptr<Dispatcher> dispatcher)
    : UninstallerModel(std::move(where), std::move(dispatcher), Sources{}) {}

UninstallerModel::UninstallerModel(KelmarPaths where, std::shared_ptr<Dispatcher> dispatcher,
                                   Sources sources)
    : paths(std::move(where)),
      dispatcher_(std::move(dispatcher)),
      sources_(std::move(sources)) {
    if (!sources_.scan) {
        sources_.scan = Scanner::scan;
    }
    if (!sources_.size) {
        sources_.size = Scanner::size;
    }
    if (!sources_.administrator) {
        sources_.administrator = Uninstaller::usualRunner;
    }
}

bool UninstallerModel::isWorking() const {
    return std::holds_alternative<Working>(published_.phase);
}

UninstallerModel::Published& UninstallerModel::change() {
    observer_();
    return published_;
}

void UninstallerModel::scan() {
    change().phase = Scanning{};
    dispatcher_->userInitiated([self = shared_from_this()] {
        Inventory found = self->sources_.scan(self->paths);
        self->dispatcher_->toMain(
            [self, found = std::move(found)]() mutable { self->show(std::move(found)); });
    });
}

void UninstallerModel::show(Inventory inventory) {
    const std::vector<DataFolder> folders = inventory.dataFolders();
    const std::set<std::string> present = pathsOf(folders);
    Published& published = change();
    if (std::exchange(scanned_, true)) {
        std::erase_if(published.selectedData,
                      [&present](const std::string& path) { return !present.contains(path); });
    } else {
        published.selectedData = present;
    }
    published.inventory = std::move(inventory);
    std::erase_if(published.sizes,
                  [&present](const auto& size) { return !present.contains(size.first); });
    if (std::holds_alternative<Scanning>(published.phase)) {
        // A second scan may end after a run has begun: it must not change the run's phase.
        published.phase = Ready{};
    }
    std::vector<DataFolder> unmeasured = folders;
    std::erase_if(unmeasured, [&published](const DataFolder& folder) {
        return published.sizes.contains(folder.path);
    });
    measure(std::move(unmeasured));
}

void UninstallerModel::measure(std::vector<DataFolder> folders) {
    if (folders.empty()) {
        return;
    }
    dispatcher_->utility([self = shared_from_this(), folders = std::move(folders)] {
        for (const DataFolder& folder : folders) {
            const std::int64_t bytes = self->sources_.size(folder.path).value_or(0);
            self->dispatcher_->toMain([self, path = folder.path, bytes] {
                self->change().sizes.insert_or_assign(path, bytes);
            });
        }
    });
}

void UninstallerModel::uninstallClicked() {
    if (published_.selectedData.empty()) {
        uninstall();
    } else {
        setConfirmingDataDeletion(true);
    }
}

void UninstallerModel::uninstall() {
    const auto engine = std::make_shared<Uninstaller>(
        paths, published_.inventory, published_.selectedData, sources_.administrator(paths));
    Published& published = change();
    published.removed = published.inventory;
    published.deletedData = published.selectedFolders();
    published.stages.clear();
    for (const Uninstaller::TitledStage& titled : engine->stages()) {
        published.stages.push_back({titled.stage, titled.title, StageRow::State::pending});
    }
    published.detail.clear();
    published.log = {};
    published.notice.reset();
    published.phase = Working{};
    dispatcher_->userInitiated([self = shared_from_this(), engine] {
        const Uninstaller::Outcome outcome = engine->run([self](const Uninstaller::Event& event) {
            self->dispatcher_->toMain([self, event] { self->handle(event); });
        });
        self->dispatcher_->toMain([self, outcome] { self->handle(outcome); });
    });
}

void UninstallerModel::handle(const Uninstaller::Event& event) {
    if (const auto* const started = std::get_if<Uninstaller::StageStarted>(&event)) {
        setState(StageRow::State::running, started->stage);
        change().detail.clear();
    } else if (const auto* const ended = std::get_if<Uninstaller::StageFinished>(&event)) {
        setState(StageRow::State::done, ended->stage);
        change().detail.clear();
    } else if (const auto* const doing = std::get_if<Uninstaller::Doing>(&event)) {
        change().detail = doing->text;
    } else if (const auto* const line = std::get_if<Uninstaller::Log>(&event)) {
        change().log.append(line->text);
    }
}

void UninstallerModel::handle(const Uninstaller::Outcome& outcome) {
    if (const auto* const finished = std::get_if<Uninstaller::Finished>(&outcome)) {
        change().phase = Finished{finished->failures};
        return;
    }
    change().notice = "Nothing was removed: removing Kelmar needs an administrator's password. "
                      "Kelmar was closed; open it again from Applications if you still need it.";
    scan();
}

void UninstallerModel::setState(StageRow::State state, Uninstaller::Stage stage) {
    std::vector<StageRow>& rows = change().stages;
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [stage](const StageRow& each) { return each.id == stage; });
    if (row != rows.end()) {
        row->state = state;
    }
}

bool UninstallerModel::isSelected(const DataFolder& folder) const {
    return published_.selectedData.contains(folder.path);
}

void UninstallerModel::setSelected(const DataFolder& folder, bool selected) {
    if (selected) {
        change().selectedData.insert(folder.path);
    } else {
        change().selectedData.erase(folder.path);
    }
}

bool UninstallerModel::deleteAllData() const {
    return !published_.selectedData.empty();
}

void UninstallerModel::setDeleteAllData(bool all) {
    change().selectedData =
        all ? pathsOf(published_.inventory.dataFolders()) : std::set<std::string>();
}

void UninstallerModel::setConfirmingDataDeletion(bool confirming) {
    change().confirmingDataDeletion = confirming;
}

} // namespace kelmar
