#pragma once

#include "system/files/file_descriptor.hpp"

#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar::test {

/// A server that tests need beside them, running as long as the object lives and no longer than
/// this process.
class BackgroundProgram {
public:
    /// The child's descriptor that leads here; servers are told to write there what they are to be
    /// called by.
    static constexpr const char* descriptor = "3";

    /// `environment` is set in the child's on top of this process's own.
    BackgroundProgram(const std::string& path, std::vector<std::string> arguments,
                      const std::map<std::string, std::string>& environment = {});
    BackgroundProgram(const BackgroundProgram&) = delete;
    BackgroundProgram& operator=(const BackgroundProgram&) = delete;
    ~BackgroundProgram();

    /// The first line that the server writes to the descriptor. Throws when none comes in time.
    [[nodiscard]] std::string firstLine() const;

private:
    std::string path_;
    FileDescriptor line_;
    pid_t process_ = -1;
};

} // namespace kelmar::test
