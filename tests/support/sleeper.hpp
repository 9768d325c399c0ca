#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <sys/types.h>

namespace kelmar::test {

/// A copy of sleep(1) at its own path, running until the end of the test unless something ends it.
class Sleeper {
public:
    /// Called in the child just before exec.
    using Preparation = std::function<void()>;
    static Preparation ignoring(std::vector<int> signals);
    static Preparation asUser(uid_t user);

    explicit Sleeper(std::string path, const Preparation& prepare = {});
    Sleeper(const Sleeper&) = delete;
    Sleeper& operator=(const Sleeper&) = delete;
    ~Sleeper();

    [[nodiscard]] pid_t process() const { return process_; }

    [[nodiscard]] const std::string& path() const { return path_; }

    /// Reaps the process as soon as it ends, as another parent would; otherwise it stays a zombie
    /// until the end of the test.
    void reapInBackground();
    /// Returns true if it has ended.
    [[nodiscard]] bool hasEnded();

private:
    std::string path_;
    pid_t process_ = -1;
    bool reaped_ = false;
    std::thread reaper_;
};

} // namespace kelmar::test
