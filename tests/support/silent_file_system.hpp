#pragma once

#include "system/files/file_descriptor.hpp"
#include "tests/support/private_mounts.hpp"

#include <string>

#include <sys/types.h>

namespace kelmar::test {

/// A file system that never answers, like one on a server that has gone: fuse(4), with this process
/// as a server that reads no request. It ends with the mounts; a process that waits for it can be
/// killed.
class SilentFileSystem {
public:
    static constexpr const char* skipReason = "no file system can be served here (/dev/fuse)";

    /// Mounts it at the folder `place`. Only processes of `owner` get no answer: others are denied
    /// access.
    SilentFileSystem(PrivateMounts& mounts, const std::string& place, uid_t owner = 0);

    [[nodiscard]] bool works() const { return works_; }

private:
    FileDescriptor server_;
    bool works_ = false;
};

} // namespace kelmar::test
