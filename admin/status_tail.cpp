#include "admin/status_tail.hpp"

#include "system/files/file_descriptor.hpp"
#include "system/files/reading.hpp"
#include "system/text/utf8.hpp"

#include <chrono>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {

namespace {

constexpr std::chrono::milliseconds period{200};

/// The bytes of `path` from `offset` to where the file ends now.
std::string bytesFrom(const std::string& path, std::uint64_t offset) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));

    struct stat status {};

    if (!file.isOpen() || ::fstat(file.get(), &status) != 0 ||
        static_cast<std::uint64_t>(status.st_size) <= offset) {
        return {};
    }
    std::string bytes;
    if (::lseek(file.get(), static_cast<off_t>(offset), SEEK_SET) >= 0) {
        appendToEnd(file.get(), bytes, static_cast<std::uint64_t>(status.st_size) - offset);
    }
    return bytes;
}

} // namespace

StatusTail::StatusTail(std::string file, OnLine onLine)
    : file_(std::move(file)),
      onLine_(std::move(onLine)) {}

void StatusTail::start() {
    queue_.startTimer(period, [this] { read(); });
}

void StatusTail::stop() {
    queue_.sync([this] {
        queue_.cancelTimer();
        read();
        if (!pending_.empty()) {
            handOut(std::exchange(pending_, {}));
        }
    });
}

void StatusTail::read() {
    const std::string bytes = bytesFrom(file_, offset_);
    offset_ += bytes.size();
    // Each read by itself: a character that is cut between two of them becomes replacements on both
    // sides.
    const std::string text = decodeUtf8(bytes);
    std::string_view rest = text;
    for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
        pending_.append(rest.substr(0, end));
        rest.remove_prefix(end + 1);
        handOut(std::exchange(pending_, {}));
    }
    pending_.append(rest);
}

void StatusTail::handOut(const std::string& line) {
    if (line.starts_with("DONE")) {
        sawDone_ = true;
    }
    onLine_(line);
}

} // namespace kelmar
