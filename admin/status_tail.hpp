#pragma once

#include "system/process/serial_queue.hpp"

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

namespace kelmar {

/// Follows a growing file and passes on its lines, like tail(1) with -f. Start and stop an object
/// once each. All reads and all callbacks happen on the object's own queue.
class StatusTail {
public:
    using OnLine = std::function<void(const std::string&)>;

    /// Opens nothing yet. `onLine` gets each line without its line feed, decoded as UTF-8.
    StatusTail(std::string file, OnLine onLine);
    StatusTail(const StatusTail&) = delete;
    StatusTail& operator=(const StatusTail&) = delete;
    /// If `stop` was not called, discards what has not been read; no callback follows.
    ~StatusTail() = default;

    /// Reads now and then every 200 milliseconds. A file that does not exist yet is tried again.
    void start();

    /// Reads a last time and passes on a last line that has no line feed. When it returns, no read
    /// is running, none follows, and all effects of the callback are visible to the caller.
    void stop();

    /// Returns true if a line beginning with "DONE" has been read; final once `stop` has returned.
    [[nodiscard]] bool sawDone() const { return sawDone_; }

    /// Returns false if a line was longer than a mebibyte, the file larger than a gibibyte, or
    /// memory ran out; nothing is read after that. Final once `stop` has returned.
    [[nodiscard]] bool isSound() const { return isSound_; }

private:
    /// Runs `job`. If memory runs out, stops reading and clears `isSound`.
    void soundly(const std::function<void()>& job);
    void read();
    /// Passes on the complete lines in `bytes` and leaves the incomplete rest there.
    void takeLines(std::string& bytes);
    void handOut(const std::string& line);

    const std::string file_;
    const OnLine onLine_;
    std::uint64_t offset_ = 0; ///< bytes read so far
    std::string pending_;      ///< an incomplete last line
    std::atomic<bool> sawDone_{false};
    std::atomic<bool> isSound_{true};
    SerialQueue queue_{"kelmar.uninstaller.status"}; ///< last: ends before what its jobs use
};

} // namespace kelmar
