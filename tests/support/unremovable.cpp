#include "tests/support/unremovable.hpp"

#include "system/files/file_descriptor.hpp"

#include <utility>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>

namespace kelmar::test {

namespace {

bool setImmutable(const std::string& path, bool immutable) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    unsigned flags = 0;
    constexpr unsigned bit = FS_IMMUTABLE_FL;
    if (!file.isOpen() || ::ioctl(file.get(), FS_IOC_GETFLAGS, &flags) != 0) {
        return false;
    }
    flags = immutable ? flags | bit : flags & ~bit;
    return ::ioctl(file.get(), FS_IOC_SETFLAGS, &flags) == 0;
}

} // namespace

Unremovable::Unremovable(std::string path)
    : path_(std::move(path)),
      works_(setImmutable(path_, true)) {}

Unremovable::~Unremovable() {
    setImmutable(path_, false);
}

} // namespace kelmar::test
