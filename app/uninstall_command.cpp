#include "app/uninstall_command.hpp"

#include "app/printing.hpp"
#include "discovery/scanner.hpp"
#include "engine/uninstaller.hpp"

#include <map>
#include <set>
#include <string>
#include <variant>

namespace kelmar {

namespace {

constexpr std::int32_t removed = 0;
constexpr std::int32_t itemsLeft = 1;
constexpr std::int32_t cancelled = 3;

std::set<std::string> selection(const Inventory& inventory, bool deleteData) {
    std::set<std::string> selected;
    if (deleteData) {
        for (const DataFolder& folder : inventory.dataFolders()) {
            selected.insert(folder.path);
        }
    }
    return selected;
}

/// Prints the events of a run as its record.
class EventPrinter {
public:
    explicit EventPrinter(const Uninstaller& uninstaller) {
        for (const Uninstaller::TitledStage& titled : uninstaller.stages()) {
            titles_[titled.stage] = titled.title;
        }
    }

    void operator()(const Uninstaller::StageStarted& event) const {
        const auto title = titles_.find(event.stage);
        print("==> " + (title == titles_.end() ? "" : title->second));
    }

    void operator()(const Uninstaller::Log& event) const { print(indent + event.text); }

    void operator()(const Uninstaller::StageFinished& /*event*/) const {}

    void operator()(const Uninstaller::Doing& /*event*/) const {}

private:
    std::map<Uninstaller::Stage, std::string> titles_;
};

std::int32_t report(const Uninstaller::Finished& outcome, const KelmarPaths& paths) {
    if (outcome.failures.empty()) {
        print("Kelmar has been removed.");
        return removed;
    }
    print("Not removed:");
    for (const Uninstaller::Failure& failure : outcome.failures) {
        print(indent + paths.display(failure.path) + ": " + failure.reason);
    }
    return itemsLeft;
}

} // namespace

std::int32_t uninstall(const KelmarPaths& paths, bool deleteData) {
    const Inventory inventory = Scanner::scan(paths);
    if (inventory.isEmpty()) {
        print("Kelmar isn't on this Mac; nothing to remove.");
        return removed;
    }
    Uninstaller uninstaller(paths, inventory, selection(inventory, deleteData));
    const EventPrinter printer(uninstaller);
    const Uninstaller::Outcome outcome = uninstaller.run(
        [&printer](const Uninstaller::Event& event) { std::visit(printer, event); });
    if (const auto* const finished = std::get_if<Uninstaller::Finished>(&outcome)) {
        return report(*finished, paths);
    }
    print("Cancelled at the administrator password prompt; nothing was removed.");
    return cancelled;
}

} // namespace kelmar
