// Measures the program's window from outside, beside a bare one of the same size: the time to the
// first frame and the memory, in random alternation, and the load at rest. Its one argument is the
// folder of a sample Mac.

#include "bench/frame_watch.hpp"
#include "bench/pair_table.hpp"
#include "bench/process_figures.hpp"
#include "bench/require.hpp"
#include "tests/support/background_program.hpp"
#include "tests/support/desktop_session.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <sys/types.h>

namespace kelmar::bench {
namespace {

using namespace std::chrono_literals;

/// Runs a program with a window for the life of the object.
class WindowProgram {
public:
    WindowProgram(FrameWatch& watch, const std::string& program)
        : watch_(watch),
          started_(FrameWatch::Clock::now()),
          program_(std::in_place, program, std::vector<std::string>{}),
          firstFrame_(watch_.firstFrame()) {}

    WindowProgram(const WindowProgram&) = delete;
    WindowProgram& operator=(const WindowProgram&) = delete;

    ~WindowProgram() {
        program_.reset();
        watch_.untilGone();
    }

    [[nodiscard]] double millisecondsToFirstFrame() const {
        return std::chrono::duration<double, std::milli>(firstFrame_ - started_).count();
    }

    [[nodiscard]] pid_t process() const { return program_->process(); }

private:
    FrameWatch& watch_;
    FrameWatch::Clock::time_point started_;
    std::optional<test::BackgroundProgram> program_;
    FrameWatch::Clock::time_point firstFrame_;
};

/// Runs `ours` and `beside` `runs` times each, in a new random order every time.
void alternate(int runs, const std::function<void()>& ours, const std::function<void()>& beside) {
    std::mt19937 random{std::random_device()()};
    std::array<const std::function<void()>*, 2> both{&ours, &beside};
    for (int run = 0; run < runs; ++run) {
        std::shuffle(both.begin(), both.end(), random);
        for (const auto* each : both) {
            (*each)();
            std::fputc('.', stderr);
        }
    }
}

void measureStart(FrameWatch& watch) {
    std::vector<double> ours;
    std::vector<double> beside;
    const auto start = [&watch](const char* program) {
        return WindowProgram(watch, program).millisecondsToFirstFrame();
    };
    // One start each that does not count: neither then reads its files from the disk.
    start(KELMAR_EXECUTABLE);
    start(KELMAR_BARE_WINDOW);
    // Many runs, since the ratio is near its limit and a start is short.
    alternate(
        61, [&] { ours.push_back(start(KELMAR_EXECUTABLE)); },
        [&] { beside.push_back(start(KELMAR_BARE_WINDOW)); });
    printRow({"start-up to the first frame of the window", "a bare window", 1.3}, ours, beside,
             "ms");
}

void measureMemory(FrameWatch& watch) {
    struct Figures {
        std::vector<double> resident;
        std::vector<double> proportional;
    };

    Figures ours;
    Figures beside;
    const auto measure = [&watch](const char* program, Figures& figures) {
        const WindowProgram running(watch, program);
        watch.drawingsWithin(2s);
        const MemoryUse use = memoryUse(running.process());
        figures.resident.push_back(use.residentMiB);
        figures.proportional.push_back(use.proportionalMiB);
    };
    alternate(
        5, [&] { measure(KELMAR_EXECUTABLE, ours); }, [&] { measure(KELMAR_BARE_WINDOW, beside); });
    printRow({"memory of the window, resident", "a bare window", 1.3}, ours.resident,
             beside.resident, "MiB");
    printRow({"the same, shared pages divided among their users", "a bare window", 1.3},
             ours.proportional, beside.proportional, "MiB");
}

void measureRest(FrameWatch& watch) {
    const WindowProgram running(watch, KELMAR_EXECUTABLE);
    const std::size_t until = watch.untilStill(3s);
    // The names of the threads that scan and measure.
    require(!hasThread(running.process(), "user-initiated") &&
                !hasThread(running.process(), "utility"),
            "the scan is over and every folder is measured");
    const ProcessorUse before = processorUse(running.process());
    const std::size_t drawn = watch.drawingsWithin(10s);
    const ProcessorUse after = processorUse(running.process());
    std::printf("\nThe window at rest for 10 s, %zu drawings after its first frame: %lld ticks of "
                "processor time (at most 1), %.3f ms by the scheduler's clock, %lld voluntary "
                "switches, %zu drawings\n",
                until, static_cast<long long>(after.ticks - before.ticks),
                after.milliseconds - before.milliseconds,
                static_cast<long long>(after.switches - before.switches), drawn);
}

} // namespace
} // namespace kelmar::bench

int main(int count, char** arguments) {
    using namespace kelmar::bench;
    if (count != 2) {
        std::fprintf(stderr, "usage: window-ratios FOLDER\n");
        return EXIT_FAILURE;
    }
    ::setenv("KELMAR_UNINSTALLER_TEST_ROOT", arguments[1], 1);
    const kelmar::test::XServer server(1280, 900);
    kelmar::test::leaveDesktopFor(server);
    FrameWatch watch;
    printTableHead();
    measureStart(watch);
    measureMemory(watch);
    measureRest(watch);
    return EXIT_SUCCESS;
}
