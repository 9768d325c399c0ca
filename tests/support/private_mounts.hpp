#pragma once

#include <string>
#include <vector>

namespace kelmar::test {

/// Mounts that only this process and its children see, in their own mount namespace
/// (mount_namespaces(7)); needs root. The destructor removes them. To mount into a TemporaryFolder,
/// declare this after it: the folder's destructor deletes its content, and nothing of this machine
/// may still be mounted there, not even if a mount failed half-way.
class PrivateMounts {
public:
    /// Throws std::system_error if the system refuses a namespace.
    PrivateMounts();
    PrivateMounts(const PrivateMounts&) = delete;
    PrivateMounts& operator=(const PrivateMounts&) = delete;
    /// Ends the process if something cannot be unmounted.
    ~PrivateMounts();

    /// Makes the file or folder `source` visible at `target` as well, without mounts inside it;
    /// creates a missing target folder. Throws std::system_error.
    void bind(const std::string& source, const std::string& target);

    /// The same, with the mounts inside it.
    void bindWithMounts(const std::string& source, const std::string& target);

    /// Mounts a new file system; see mount(2) for `type` and `options`. Throws std::system_error.
    void add(const std::string& type, const std::string& target, const std::string& options);

private:
    void mount(const std::string& source, const std::string& target, const char* type,
               unsigned long flags, const char* options);

    std::vector<std::string> targets_;
};

} // namespace kelmar::test
