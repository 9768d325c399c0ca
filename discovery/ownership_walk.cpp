#include "discovery/ownership_walk.hpp"

#include "discovery/pending_directory.hpp"
#include "system/files/file_descriptor.hpp"
#include "system/files/folder_entries.hpp"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <iterator>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <fcntl.h>

namespace kelmar {

namespace {

using Folder = std::shared_ptr<PendingDirectory>;

/// With fewer waiting folders, a second thread costs more than it saves.
constexpr std::size_t worthSharing = 16;

class Walk {
public:
    Walk(uid_t owner, unsigned threads) : owner_(owner), threads_(threads) {}

    bool run(const std::string& path) {
        FileDescriptor top(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!top.isOpen()) {
            return false;
        }
        waiting_.push_back(std::make_shared<PendingDirectory>(std::move(top)));
        work(true);
        for (std::thread& helper : helpers_) {
            helper.join();
        }
        return !refuted_;
    }

private:
    void work(bool mayCallHelp) {
        std::unique_lock lock(mutex_);
        while (true) {
            changed_.wait(lock, [this] { return !waiting_.empty() || atWork_ == 0 || refuted_; });
            if (waiting_.empty() || refuted_) {
                return;
            }
            Folder folder = std::move(waiting_.back());
            waiting_.pop_back();
            ++atWork_;
            lock.unlock();
            std::vector<Folder> inside = examine(folder);
            folder.reset();
            lock.lock();
            --atWork_;
            std::move(inside.begin(), inside.end(), std::back_inserter(waiting_));
            if (mayCallHelp && helpers_.empty() && waiting_.size() >= worthSharing) {
                callHelp();
            }
            if (inside.size() > 1 || atWork_ == 0 || refuted_) {
                changed_.notify_all();
            }
        }
    }

    /// Call with the lock held. If a thread cannot be started, the walk continues without it.
    void callHelp() {
        try {
            for (unsigned count = 1; count < threads_; ++count) {
                helpers_.emplace_back([this] { work(false); });
            }
        } catch (const std::system_error&) {
            threads_ = 1;
        }
    }

    /// Returns the folders directly inside `folder`; sets `refuted_` if an entry decides the
    /// question.
    std::vector<Folder> examine(const Folder& folder) {
        FileDescriptor descriptor = folder->open();
        std::vector<Folder> inside;
        const auto visit = [&](const FolderEntry& entry) {
            if (entry.owner == owner_ && entry.isFolder) {
                inside.push_back(std::make_shared<PendingDirectory>(folder, entry.name));
            }
            return entry.owner == owner_ && !refuted_;
        };
        if (!descriptor.isOpen() ||
            readFolder(descriptor.get(), visit) != FolderReading::complete) {
            refuted_ = true;
            return {};
        }
        if (!inside.empty()) {
            folder->keepOpen(std::move(descriptor), openCount_);
        }
        return inside;
    }

    const uid_t owner_;
    unsigned threads_;
    std::vector<std::thread> helpers_;
    std::atomic<bool> refuted_{false};
    std::atomic<int> openCount_{0};

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Folder> waiting_; ///< a stack: depth first keeps it small
    std::size_t atWork_ = 0;
};

} // namespace

bool everythingBeneathBelongsTo(uid_t owner, const std::string& path, unsigned threads) {
    return Walk(owner, threads).run(path);
}

} // namespace kelmar
