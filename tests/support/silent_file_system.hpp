#pragma once

#include "system/files/file_descriptor.hpp"
#include "tests/support/private_mounts.hpp"

#include <string>

#include <sys/types.h>

namespace kelmar::test {

/// A file system that never answers, as one on a server that has gone: with fuse(4), whose other
/// side is this process, which reads no request. Gone with the mounts; who waits for it can be
/// killed.
class SilentFileSystem {
public:
    static constexpr const char* skipReason = "no file system can be served here (/dev/fuse)";

    /// Mounts it at the folder `place`. Only processes of `owner` may ask it anything: others are
    /// told that they may not.
    SilentFileSystem(PrivateMounts& mounts, const std::string& place, uid_t owner = 0);

    [[nodiscard]] bool works() const { return works_; }

private:
    FileDescriptor server_;
    bool works_ = false;
};

} // namespace kelmar::test
