#include "tests/support/swapper.hpp"

#include <cstdlib>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace kelmar::test {

Swapper::Swapper(std::vector<Pair> pairs) : pairs_(std::move(pairs)) {
    thread_ = std::thread([this] {
        while (!isEnough_) {
            for (const auto& [one, other] : pairs_) {
                const long failed = ::syscall(SYS_renameat2, AT_FDCWD, one.c_str(), AT_FDCWD,
                                              other.c_str(), RENAME_EXCHANGE);
                swaps_ += failed == 0 ? 1 : 0;
            }
        }
    });
}

Swapper::~Swapper() {
    isEnough_ = true;
    thread_.join();
}

int races() {
    const char* const wanted = std::getenv("KELMAR_RACES");
    return wanted == nullptr ? 20 : static_cast<int>(std::strtol(wanted, nullptr, 10));
}

} // namespace kelmar::test
