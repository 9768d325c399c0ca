#include "discovery/pending_directory.hpp"

#include <utility>
#include <vector>

#include <fcntl.h>

namespace kelmar {

namespace {

constexpr std::size_t pieceLimit = 4000; ///< bytes; below what any system takes as one path

/// How many folders stay open so that the folders inside them can be opened. Most trees need only
/// the first figure. In deeper trees every 64th level stays open as well, so that each folder has
/// an open ancestor nearby.
constexpr int keptOpen = 48;
constexpr int keptOpenAtMilestones = 144;
constexpr std::size_t milestone = 64;

} // namespace

/// Releases ancestors iteratively; default destruction would recurse.
PendingDirectory::~PendingDirectory() {
    if (openCount_ != nullptr) {
        openCount_->fetch_sub(1);
    }
    while (above_ && above_.use_count() == 1) {
        above_ = std::move(above_->above_);
    }
}

FileDescriptor PendingDirectory::open() {
    if (!above_) {
        return std::move(descriptor_);
    }
    std::vector<const std::string*> names{&name_};
    const PendingDirectory* from = above_.get();
    while (!from->descriptor_.isOpen()) {
        names.push_back(&from->name_);
        from = from->above_.get();
    }
    FileDescriptor reached;
    int folder = from->descriptor_.get();
    while (!names.empty()) {
        std::string piece = *names.back();
        names.pop_back();
        while (!names.empty() && piece.size() + 1 + names.back()->size() < pieceLimit) {
            piece.append("/").append(*names.back());
            names.pop_back();
        }
        FileDescriptor next(
            ::openat(folder, piece.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!next.isOpen()) {
            return {};
        }
        reached = std::move(next);
        folder = reached.get();
    }
    return reached;
}

void PendingDirectory::keepOpen(FileDescriptor descriptor, std::atomic<int>& count) {
    const bool isTop = !above_;
    const int limit = depth_ % milestone == 0 ? keptOpenAtMilestones : keptOpen;
    if (isTop || count < limit) {
        descriptor_ = std::move(descriptor);
        openCount_ = &count;
        count.fetch_add(1);
    }
}

} // namespace kelmar
