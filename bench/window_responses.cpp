// Measures from inside how soon the window shows what the model publishes, on an X server of its
// own: at a thousand changes a second, and with a log of 100,000 lines. Its one argument is an
// empty folder.

#include "bench/painted_application.hpp"
#include "bench/pair_table.hpp"
#include "bench/process_figures.hpp"
#include "bench/require.hpp"
#include "tests/support/desktop_session.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/scripted_runner.hpp"
#include "ui/qt/dispatcher.hpp"
#include "ui/qt/log_view.hpp"

#include <QTimer>
#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

#include <malloc.h>
#include <unistd.h>

namespace kelmar::bench {
namespace {

using namespace std::chrono_literals;
using Clock = PaintedApplication::Clock;
using Model = UninstallerModel;

double milliseconds(Clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

/// `count` data folders of `scope`. Any selection of them has another total, which also reads
/// differently.
Inventory inventoryOf(const KelmarPaths& paths, Scope scope, int count) {
    DataRoot root{scope, paths.dataRoot(scope), {}, {}};
    std::int64_t bytes = 10'000'000;
    for (int index = 0; index < count; ++index, bytes *= 2) {
        const std::string name = std::to_string(bytes);
        root.folders.push_back({name, "Imported documents", root.path + "/" + name, {}});
    }
    Inventory inventory;
    inventory.dataRoots.push_back(std::move(root));
    return inventory;
}

Model::Sources sourcesOf(const Inventory& inventory) {
    Model::Sources sources;
    sources.scan = [inventory](const KelmarPaths&) { return inventory; };
    sources.size = [](const std::string& path) {
        return std::stoll(path.substr(path.rfind('/') + 1));
    };
    return sources;
}

void rest(Clock::duration time) {
    const Clock::time_point end = Clock::now() + time;
    QTimer timer;
    timer.start(10);
    PaintedApplication::runUntil([end] { return Clock::now() >= end; });
}

/// Opens the window on a scanned and measured inventory, and waits until it is idle.
std::unique_ptr<AppDelegate> openWindow(const KelmarPaths& paths, Model::Sources sources) {
    auto delegate = std::make_unique<AppDelegate>(paths, std::move(sources));
    delegate->applicationDidFinishLaunching();
    const Model::Published& published = delegate->model->published();
    PaintedApplication::runUntil([&published] {
        return std::holds_alternative<Model::Ready>(published.phase) &&
               published.sizes.size() == published.inventory.dataFolders().size();
    });
    rest(500ms);
    return delegate;
}

/// Sends changes from another thread to the screen and times them.
class Changes {
public:
    explicit Changes(UninstallerView& view)
        : view_(view),
          folders_(view.model->published().inventory.dataFolders()) {}

    /// Changes the choice of the folder at `index`, and with it the total. The first folder stays
    /// chosen, so that there always is a total.
    void make(std::size_t index, Clock::time_point handedOver) {
        const DataFolder& folder = folders_.at(1 + index % (folders_.size() - 1));
        const Clock::time_point made = Clock::now();
        view_.setSelected(folder.path, !view_.model->isSelected(folder));
        made_.push_back({handedOver, made});
    }

    void rendered() {
        rendered_.insert(rendered_.end(), made_.begin(), made_.end());
        made_.clear();
    }

    void painted() {
        const Clock::time_point now = Clock::now();
        for (const Change& change : rendered_) {
            fromThread.push_back(milliseconds(now - change.handedOver));
            fromModel.push_back(milliseconds(now - change.made));
        }
        rendered_.clear();
    }

    std::vector<double> fromThread; ///< milliseconds from posting to the screen
    std::vector<double> fromModel;  ///< milliseconds from the model's change to the screen

private:
    struct Change {
        Clock::time_point handedOver;
        Clock::time_point made;
    };

    UninstallerView& view_;
    std::vector<DataFolder> folders_;
    std::vector<Change> made_;
    std::vector<Change> rendered_;
};

void printLatencies(const char* from, const std::vector<double>& latencies, const char* limit) {
    std::printf("- from %s to the painted line: median %.2f ms, 99th percentile %.2f ms%s, longest "
                "%.2f ms\n",
                from, median(latencies), quantile(latencies, 0.99), limit, quantile(latencies, 1));
}

void measureChanges(PaintedApplication& application, const KelmarPaths& paths) {
    constexpr std::size_t count = 5'000;
    const std::unique_ptr<AppDelegate> delegate =
        openWindow(paths, sourcesOf(inventoryOf(paths, Scope::me, 10)));
    delegate->view().perform(Action::toggleFolders);
    rest(500ms);

    const auto dispatcher = std::make_shared<QtDispatcher>();
    Changes changes(delegate->view());
    application.watch(
        *delegate, [&changes] { changes.rendered(); }, [&changes] { changes.painted(); });
    const Clock::time_point start = Clock::now();
    std::thread source([&changes, dispatcher, start] {
        for (std::size_t index = 0; index < count; ++index) {
            std::this_thread::sleep_until(start + index * 1ms);
            const Clock::time_point now = Clock::now();
            dispatcher->toMain([&changes, index, now] { changes.make(index, now); });
        }
    });
    PaintedApplication::runUntil([&changes] { return changes.fromThread.size() == count; });
    const double seconds = milliseconds(Clock::now() - start) / 1'000;
    source.join();
    application.stopWatching();

    std::printf("\n%zu changes from another thread within %.2f s, %zu times painted, at most %zu "
                "renders (at most 1) in an iteration of the event loop:\n\n",
                count, seconds, application.paints(), application.mostRendersInATurn());
    printLatencies("the thread's event", changes.fromThread, " (below 16 ms)");
    printLatencies("the model's change", changes.fromModel, "");
}

/// What the program has allocated and not freed, in MiB (mallinfo(3)).
double allocatedMiB() {
    const struct mallinfo2 info = ::mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / (1024 * 1024);
}

/// Writes a log of 100,000 lines, in portions that grow.
class LongLog {
public:
    static constexpr int lines = 100'000;

    void write(const std::string& statusFile) {
        int line = 0;
        for (int portion = 500; line < lines; portion *= 2) {
            std::string text;
            for (const int end = std::min(lines, line + portion); line < end; ++line) {
                const std::string number = std::to_string(lines + line);
                const std::string shown = "Removed ~/Library/Kelmar/Store/" + number.substr(0, 3) +
                                          "/document-" + number + ".pdf";
                textBytes += shown.size() + 1;
                text += "LOG " + shown + "\n";
            }
            if (line == lines) {
                text += "DONE\n";
            }
            test::writes(text)(statusFile);
            written = Clock::now().time_since_epoch().count();
            std::this_thread::sleep_for(250ms);
        }
    }

    std::atomic<std::size_t> textBytes{0};
    std::atomic<Clock::rep> written{0};
};

LogView* logViewOf(const AppDelegate& delegate) {
    for (QWidget* const each : delegate.window()->findChildren<QWidget*>()) {
        if (auto* const view = dynamic_cast<LogView*>(each)) {
            return view;
        }
    }
    return nullptr;
}

void measureLog(PaintedApplication& application, const KelmarPaths& paths) {
    const auto log = std::make_shared<LongLog>();
    Model::Sources sources = sourcesOf(inventoryOf(paths, Scope::allUsers, 1));
    sources.administrator = [log](const KelmarPaths&) {
        return std::make_shared<test::ScriptedRunner>(
            [log](const std::string& statusFile) { log->write(statusFile); });
    };
    const std::unique_ptr<AppDelegate> delegate = openWindow(paths, std::move(sources));
    delegate->view().perform(Action::toggleDetails);
    rest(500ms);
    const MemoryUse before = memoryUse(::getpid());
    const double allocatedBefore = allocatedMiB();

    application.watch(
        *delegate, [] {}, [] {});
    // Not a list of all: it would take more memory than the log.
    double longest = 0;
    int above16 = 0;
    Clock::time_point last = Clock::now();
    QTimer probe;
    QObject::connect(&probe, &QTimer::timeout, &probe, [&longest, &above16, &last] {
        const Clock::time_point now = Clock::now();
        const double iteration = milliseconds(now - std::exchange(last, now));
        longest = std::max(longest, iteration);
        above16 += iteration > 16 ? 1 : 0;
    });
    probe.start(0);
    delegate->model->uninstall();
    const Model::Published& published = delegate->model->published();
    PaintedApplication::runUntil([&delegate, &published] {
        return std::holds_alternative<Model::Finished>(published.phase) &&
               logViewOf(*delegate)->isComplete();
    });
    const Clock::duration shown = Clock::now().time_since_epoch();
    rest(500ms);
    probe.stop();
    application.stopWatching();
    const MemoryUse after = memoryUse(::getpid());
    const double allocatedAfter = allocatedMiB();
    require(published.log.size() == LongLog::lines &&
                logViewOf(*delegate)->text().lineCount() == LongLog::lines,
            "every line of the log is shown");

    constexpr double mebibyte = 1024 * 1024;
    const double text = static_cast<double>(log->textBytes) / mebibyte;
    const double growth = after.residentMiB - before.residentMiB;
    std::printf(
        "\nA log of %d lines, unfolded, at most %zu renders (at most 1) in an iteration of the "
        "event loop:\n\n",
        LongLog::lines, application.mostRendersInATurn());
    std::printf("- longest iteration of the event loop %.2f ms, %d above 16 ms\n", longest,
                above16);
    std::printf("- all of it shown %.2f s after its last line was written\n",
                milliseconds(shown - Clock::duration(log->written)) / 1'000);
    const double allocated = allocatedAfter - allocatedBefore;
    std::printf("- allocated memory grown by %.1f MiB for %.1f MiB of text, %.1f times as much; "
                "resident memory by %.1f MiB\n",
                allocated, text, allocated / text, growth);
}

} // namespace
} // namespace kelmar::bench

int main(int count, char** arguments) {
    using namespace kelmar::bench;
    if (count != 2) {
        std::fprintf(stderr, "usage: window-responses FOLDER\n");
        return EXIT_FAILURE;
    }
    const kelmar::KelmarPaths paths = kelmar::test::MacTree(arguments[1]).paths();
    const kelmar::test::XServer server(1280, 900);
    kelmar::test::leaveDesktopFor(server);
    int noArguments = 1;
    PaintedApplication application(noArguments, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    measureChanges(application, paths);
    measureLog(application, paths);
    return EXIT_SUCCESS;
}
