#pragma once

#include "system/files/file_descriptor.hpp"

#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar::test {

/// A server or another program beside this process, running as long as the object lives and no
/// longer than this process. Its standard streams are the null device.
class BackgroundProgram {
public:
    /// The child's file descriptor that `firstLine` reads; servers are told to write their address
    /// there.
    static constexpr const char* descriptor = "3";

    /// `environment` is set in the child's on top of this process's own.
    BackgroundProgram(const std::string& path, std::vector<std::string> arguments,
                      const std::map<std::string, std::string>& environment = {});
    BackgroundProgram(const BackgroundProgram&) = delete;
    BackgroundProgram& operator=(const BackgroundProgram&) = delete;
    ~BackgroundProgram();

    [[nodiscard]] pid_t process() const { return process_; }

    /// The first line that the program writes to the descriptor; to be called once. Throws
    /// std::runtime_error if none comes before the timeout.
    [[nodiscard]] std::string firstLine();

private:
    std::string path_;
    FileDescriptor line_;
    pid_t process_ = -1;
};

} // namespace kelmar::test
