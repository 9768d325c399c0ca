#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <sys/types.h>

namespace kelmar::test {

/// A copy of sleep(1) at a path of its own, running until the end of the test unless something ends
/// it.
class Sleeper {
public:
    /// Last thing before the program, in the child.
    using Preparation = std::function<void()>;
    static Preparation ignoring(std::vector<int> signals);
    static Preparation asUser(uid_t user);

    explicit Sleeper(std::string path, const Preparation& prepare = {});
    Sleeper(const Sleeper&) = delete;
    Sleeper& operator=(const Sleeper&) = delete;
    ~Sleeper();

    [[nodiscard]] pid_t process() const { return process_; }

    [[nodiscard]] const std::string& path() const { return path_; }

    /// Lets the process vanish as soon as it ends, as a stranger's would; else it stays a zombie
    /// until the end of the test.
    void reapInBackground();
    /// Whether it has ended by now.
    [[nodiscard]] bool hasEnded();

private:
    std::string path_;
    pid_t process_ = -1;
    bool reaped_ = false;
    std::thread reaper_;
};

} // namespace kelmar::test
