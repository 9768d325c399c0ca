#pragma once

#include "system/files/file_descriptor.hpp"

#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar::test {

/// Runs a server or another program beside this process, for the life of the object and no longer
/// than this process. Its standard streams are the null device.
class BackgroundProgram {
public:
    /// The child's file descriptor that `firstLine` reads; tell servers to write their address to
    /// it.
    static constexpr const char* descriptor = "3";

    /// `environment` adds to this process's own.
    BackgroundProgram(const std::string& path, std::vector<std::string> arguments,
                      const std::map<std::string, std::string>& environment = {});
    BackgroundProgram(const BackgroundProgram&) = delete;
    BackgroundProgram& operator=(const BackgroundProgram&) = delete;
    ~BackgroundProgram();

    [[nodiscard]] pid_t process() const { return process_; }

    /// The first line that the program writes to the descriptor; call it once. Throws
    /// std::runtime_error if none arrives before the timeout.
    [[nodiscard]] std::string firstLine();

private:
    std::string path_;
    FileDescriptor line_;
    pid_t process_ = -1;
};

} // namespace kelmar::test
