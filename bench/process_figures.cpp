#include "bench/process_figures.hpp"

#include "bench/require.hpp"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace kelmar::bench {

namespace {

/// The number after `name` in a file of lines "name: number".
std::int64_t numberIn(const std::string& file, const std::string& name) {
    std::ifstream lines(file);
    std::string word;
    std::int64_t number = 0;
    while (lines >> word) {
        if (word == name && lines >> number) {
            return number;
        }
    }
    require(false, ("no " + name + " in " + file).c_str());
    return 0;
}

std::int64_t ticksOf(const std::string& folder) {
    std::ifstream file(folder + "/stat");
    std::string text;
    std::getline(file, text);
    // proc(5): the second field is the name in brackets, which may hold anything. The twelfth and
    // thirteenth after it are user and system time.
    const std::size_t end = text.rfind(')');
    require(end != std::string::npos, "the processor time of a process");
    std::istringstream fields(text.substr(end + 1));
    std::string skipped;
    for (int field = 0; field < 11; ++field) {
        fields >> skipped;
    }
    std::int64_t inProgram = 0;
    std::int64_t inKernel = 0;
    require(static_cast<bool>(fields >> inProgram >> inKernel), "the processor time of a process");
    return inProgram + inKernel;
}

} // namespace

MemoryUse memoryUse(pid_t process) {
    constexpr double kibibytes = 1024;
    const std::string file = "/proc/" + std::to_string(process) + "/smaps_rollup";
    return {static_cast<double>(numberIn(file, "Rss:")) / kibibytes,
            static_cast<double>(numberIn(file, "Pss:")) / kibibytes};
}

ProcessorUse processorUse(pid_t process) {
    constexpr double nanoseconds = 1e6;
    const std::string folder = "/proc/" + std::to_string(process);
    ProcessorUse use;
    use.ticks = ticksOf(folder);
    for (const auto& thread : std::filesystem::directory_iterator(folder + "/task")) {
        const std::string path = thread.path().string();
        double running = 0;
        if (!(std::ifstream(path + "/schedstat") >> running)) {
            continue; // the thread has ended meanwhile
        }
        use.milliseconds += running / nanoseconds;
        use.switches += numberIn(path + "/status", "voluntary_ctxt_switches:");
    }
    return use;
}

bool hasThread(pid_t process, const std::string& name) {
    const std::string folder = "/proc/" + std::to_string(process) + "/task";
    for (const auto& thread : std::filesystem::directory_iterator(folder)) {
        std::string found;
        std::ifstream file(thread.path() / "comm");
        std::getline(file, found);
        if (found == name) {
            return true;
        }
    }
    return false;
}

} // namespace kelmar::bench
