#include "tests/window/window_fixture.hpp"

#include <algorithm>
#include <fstream>
#include <sstream>

#include <unistd.h>

namespace kelmar {
namespace {

using test::Window;

/// What the system has counted of a process and its threads; see proc(5).
struct Activity {
    long ticks = 0;   ///< of processor time
    long wakings = 0; ///< of the main thread
};

Activity activityOf(pid_t process) {
    const std::string folder = "/proc/" + std::to_string(process) + "/";
    std::string line;
    std::getline(std::ifstream(folder + "stat"), line);
    std::istringstream fields(line.substr(line.rfind(')') + 2));
    std::string skipped;
    for (int field = 3; field < 14; ++field) {
        fields >> skipped;
    }
    long user = 0;
    long system = 0;
    fields >> user >> system;
    Activity activity{user + system, 0};
    std::ifstream status(folder + "status");
    while (std::getline(status, line)) {
        if (line.starts_with("voluntary_ctxt_switches:")) {
            activity.wakings = std::stol(line.substr(line.find(':') + 1));
        }
    }
    return activity;
}

TEST_F(Window, DoesNothingAtAllWhileNobodyDoesAnythingToIt) {
    mac->everything();
    open();
    ASSERT_TRUE(shows("push button: Uninstall"));
    ASSERT_TRUE(eventually([this] {
        const Lines lines = page();
        return std::none_of(lines.begin(), lines.end(), [](const std::string& line) {
            return line.find("Measuring") != std::string::npos;
        });
    }));
    ::sleep(1); // what our questions have stirred up settles
    const Activity before = activityOf(running->process());
    ::sleep(3);
    const Activity after = activityOf(running->process());
    EXPECT_LE(after.ticks - before.ticks, 1);
    EXPECT_LE(after.wakings - before.wakings, 3);
    EXPECT_GT(before.ticks, 0) << "it has been counted";
}

} // namespace
} // namespace kelmar
