#include "discovery/ownership_walk.hpp"
#include "discovery/scanner.hpp"

#include <algorithm>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {

namespace {

/// The walk is bound by the kernel's locks, not by processors: more threads gain nothing.
constexpr unsigned threadLimit = 4;

} // namespace

bool Scanner::ownedByMe(const std::string& path) {
    struct stat status {};

    if (::lstat(path.c_str(), &status) != 0) {
        return true;
    }
    if (status.st_uid != ::getuid()) {
        return false;
    }
    return !S_ISDIR(status.st_mode) ||
           everythingBeneathBelongsTo(
               ::getuid(), path, std::clamp(std::thread::hardware_concurrency(), 1U, threadLimit));
}

} // namespace kelmar
