#include "admin/status_tail.hpp"

#include "system/files/file_descriptor.hpp"
#include "system/files/reading.hpp"
#include "system/text/utf8.hpp"

#include <algorithm>
#include <chrono>
#include <new>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {

namespace {

constexpr std::chrono::milliseconds period{200};

constexpr std::size_t portion = 65536;
// The script's lines hold a path and a reason, but the file's owner can write anything into it.
constexpr std::size_t lineLimit = 1 << 20;
constexpr std::uint64_t sizeLimit = 1 << 30;

std::uint64_t sizeOf(const FileDescriptor& file) {
    struct stat status {};

    return file.isOpen() && ::fstat(file.get(), &status) == 0
               ? static_cast<std::uint64_t>(status.st_size)
               : 0;
}

} // namespace

StatusTail::StatusTail(std::string file, OnLine onLine)
    : file_(std::move(file)),
      onLine_(std::move(onLine)) {}

void StatusTail::start() {
    queue_.startTimer(period, [this] { soundly([this] { read(); }); });
}

void StatusTail::stop() {
    queue_.sync([this] {
        queue_.cancelTimer();
        soundly([this] {
            read();
            if (!pending_.empty()) {
                handOut(std::exchange(pending_, {}));
            }
        });
    });
}

void StatusTail::soundly(const std::function<void()>& job) {
    try {
        job();
    } catch (const std::bad_alloc&) {
        isSound_ = false;
        pending_.clear();
    }
}

void StatusTail::read() {
    const FileDescriptor file(::open(file_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    const std::uint64_t size = sizeOf(file);
    isSound_ = isSound_ && size <= sizeLimit;
    if (!isSound_ || size <= offset_ ||
        ::lseek(file.get(), static_cast<off_t>(offset_), SEEK_SET) < 0) {
        return;
    }
    std::string bytes;
    while (isSound_ && offset_ < size) {
        const ssize_t count =
            readOnce(file.get(), bytes, std::min<std::uint64_t>(portion, size - offset_));
        if (count <= 0) {
            break;
        }
        offset_ += static_cast<std::uint64_t>(count);
        takeLines(bytes);
    }
    // Each read is decoded separately: a character split across two reads becomes U+FFFD on both
    // sides.
    pending_.append(decodeUtf8(bytes));
}

void StatusTail::takeLines(std::string& bytes) {
    std::string_view rest = bytes;
    for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
        pending_.append(decodeUtf8(rest.substr(0, end)));
        rest.remove_prefix(end + 1);
        handOut(std::exchange(pending_, {}));
    }
    bytes.erase(0, bytes.size() - rest.size());
    if (bytes.size() + pending_.size() > lineLimit) {
        isSound_ = false;
        bytes.clear();
        pending_.clear();
    }
}

void StatusTail::handOut(const std::string& line) {
    if (line.starts_with("DONE")) {
        sawDone_ = true;
    }
    onLine_(line);
}

} // namespace kelmar
