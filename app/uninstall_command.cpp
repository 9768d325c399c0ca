#include "app/uninstall_command.hpp"

#include "app/interruption.hpp"
#include "app/printing.hpp"
#include "discovery/scanner.hpp"
#include "engine/uninstaller.hpp"

#include <map>
#include <set>
#include <string>
#include <variant>
#include <vector>

namespace kelmar {

namespace {

constexpr std::int32_t removed = 0;
constexpr std::int32_t itemsLeft = 1;
constexpr std::int32_t cancelled = 3;
constexpr std::int32_t signalBase = 128; // shells add it to the signal's number

std::set<std::string> selection(const Inventory& inventory, bool deleteData) {
    std::set<std::string> selected;
    if (deleteData) {
        for (const DataFolder& folder : inventory.dataFolders()) {
            selected.insert(folder.path);
        }
    }
    return selected;
}

/// Prints the events of a run as its log.
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

/// Prints how a run ended and returns its exit status.
class Report {
public:
    explicit Report(const KelmarPaths& paths) : paths_(paths) {}

    std::int32_t operator()(const Uninstaller::Finished& outcome) const {
        if (outcome.failures.empty()) {
            print("Kelmar has been removed.");
            return removed;
        }
        list(outcome.failures);
        return itemsLeft;
    }

    std::int32_t operator()(const Uninstaller::Cancelled& /*outcome*/) const {
        print("Cancelled at the administrator password prompt; nothing was removed.");
        return cancelled;
    }

    std::int32_t operator()(const Uninstaller::Interrupted& outcome) const {
        if (!outcome.failures.empty()) {
            list(outcome.failures);
        }
        print("Interrupted before it was done; run it again to remove what is left.");
        return signalBase + Interruption::signal();
    }

private:
    void list(const std::vector<Uninstaller::Failure>& failures) const {
        print("Not removed:");
        for (const Uninstaller::Failure& failure : failures) {
            print(indent + paths_.display(failure.path) + ": " + failure.reason);
        }
    }

    const KelmarPaths& paths_;
};

} // namespace

std::int32_t uninstall(const KelmarPaths& paths, bool deleteData) {
    const Inventory inventory = Scanner::scan(paths);
    if (inventory.isEmpty()) {
        Uninstaller::sweepTemporaryFolder(paths);
        print("Kelmar isn't on this Mac; nothing to remove.");
        return removed;
    }
    Uninstaller uninstaller(paths, inventory, selection(inventory, deleteData));
    const EventPrinter printer(uninstaller);
    const Interruption interruption;
    const Uninstaller::Outcome outcome =
        uninstaller.run([&printer](const Uninstaller::Event& event) { std::visit(printer, event); },
                        [] { return Interruption::signal() != 0; });
    return std::visit(Report(paths), outcome);
}

} // namespace kelmar
