#include "tests/support/sleeper.hpp"

#include "system/process/processes.hpp"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::test {

namespace fs = std::filesystem;

Sleeper::Preparation Sleeper::ignoring(std::vector<int> signals) {
    return [signals = std::move(signals)] {
        for (const int number : signals) {
            std::signal(number, SIG_IGN);
        }
    };
}

Sleeper::Preparation Sleeper::asUser(uid_t user) {
    return [user] {
        if (::setgid(user) != 0 || ::setuid(user) != 0) {
            ::_exit(126);
        }
    };
}

Sleeper::Sleeper(std::string path, const Preparation& prepare) : path_(std::move(path)) {
    fs::create_directories(fs::path(path_).parent_path());
    fs::copy_file("/bin/sleep", path_, fs::copy_options::overwrite_existing);
    fs::permissions(path_, fs::perms(0755));
    process_ = ::fork();
    if (process_ == 0) {
        if (prepare) {
            prepare();
        }
        ::execl(path_.c_str(), path_.c_str(), "600", nullptr);
        ::_exit(127);
    }
    // Wait until the child has called exec.
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (executablePath(process_) != path_ && std::chrono::steady_clock::now() < limit) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

Sleeper::~Sleeper() {
    if (reaper_.joinable()) {
        ::kill(process_,
               SIGKILL); // not reaped yet, or gone for good: its number is not another's so soon
        reaper_.join();
    } else if (!reaped_) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
}

void Sleeper::reapInBackground() {
    reaper_ = std::thread([process = process_] { ::waitpid(process, nullptr, 0); });
}

bool Sleeper::hasEnded() {
    if (reaper_.joinable()) {
        return ::kill(process_, 0) != 0;
    }
    reaped_ = reaped_ || ::waitpid(process_, nullptr, WNOHANG) == process_;
    return reaped_;
}

} // namespace kelmar::test
