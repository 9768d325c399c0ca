#pragma once

#include "system/process/serial_queue.hpp"

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

namespace kelmar {

/// Follows a growing file and hands out its lines, as tail(1) with -f does. Made, started and
/// stopped once each. All reads and all calls of the callback happen on a queue of the tail's own.
class StatusTail {
public:
    using OnLine = std::function<void(const std::string&)>;

    /// Opens nothing yet. `onLine` gets each line without its line feed, decoded as UTF-8.
    StatusTail(std::string file, OnLine onLine);
    StatusTail(const StatusTail&) = delete;
    StatusTail& operator=(const StatusTail&) = delete;
    /// Without `stop` before it, reads no more and hands nothing out.
    ~StatusTail() = default;

    /// Reads at once and then every 200 milliseconds. A file that is not there yet is tried again.
    void start();

    /// Reads a last time and hands out a last line that never got its line feed. When it returns,
    /// no read is running, none follows, and everything that the callback did is visible to the
    /// caller.
    void stop();

    /// Whether a line beginning with "DONE" has been seen; final once `stop` has returned.
    [[nodiscard]] bool sawDone() const { return sawDone_; }

    /// Whether the file was such as the script writes it: no line longer than a mebibyte, no more
    /// than a gibibyte in all, and memory for all of it. What comes after is not read. Final once
    /// `stop` has returned.
    [[nodiscard]] bool isSound() const { return isSound_; }

private:
    /// Runs `job`; what memory ran out for is not read, and that is known.
    void soundly(const std::function<void()>& job);
    void read();
    /// Hands out the lines that `bytes` ends, and leaves what follows them there.
    void takeLines(std::string& bytes);
    void handOut(const std::string& line);

    const std::string file_;
    const OnLine onLine_;
    std::uint64_t offset_ = 0; ///< bytes read so far
    std::string pending_;      ///< the beginning of a line whose end has not arrived
    std::atomic<bool> sawDone_{false};
    std::atomic<bool> isSound_{true};
    SerialQueue queue_{"kelmar.uninstaller.status"}; ///< last: it ends before what its jobs use
};

} // namespace kelmar
