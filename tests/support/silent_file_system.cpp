#include "tests/support/silent_file_system.hpp"

#include <system_error>

#include <fcntl.h>

namespace kelmar::test {

SilentFileSystem::SilentFileSystem(PrivateMounts& mounts, const std::string& place, uid_t owner)
    : server_(::open("/dev/fuse", O_RDWR | O_CLOEXEC)) {
    if (!server_.isOpen()) {
        return;
    }
    const std::string user = std::to_string(owner);
    try {
        mounts.add("fuse", place,
                   "fd=" + std::to_string(server_.get()) + ",rootmode=40000,user_id=" + user +
                       ",group_id=" + user);
        works_ = true;
    } catch (const std::system_error&) {
        works_ = false;
    }
}

} // namespace kelmar::test
