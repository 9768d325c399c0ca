#pragma once

#include <string>
#include <vector>

namespace kelmar::test {

/// Mounts that only this process and its children see, in a mount namespace of their own
/// (mount_namespaces(7)); that takes root. They end with the object. Whoever mounts into a
/// TemporaryFolder declares this after it: the folder is removed with all that is in it, and
/// nothing of this machine's may still be mounted there, not even when making the mounts failed
/// half-way.
class PrivateMounts {
public:
    /// Throws std::system_error when there is no namespace to be had.
    PrivateMounts();
    PrivateMounts(const PrivateMounts&) = delete;
    PrivateMounts& operator=(const PrivateMounts&) = delete;
    /// Ends the process when something cannot be unmounted.
    ~PrivateMounts();

    /// Lets the file or folder `source` be seen at `target` as well, without what is mounted in it;
    /// a folder is made there when it is missing. Throws std::system_error.
    void bind(const std::string& source, const std::string& target);

    /// The same with what is mounted in it.
    void bindWithMounts(const std::string& source, const std::string& target);

    /// Mounts a file system of its own; see mount(2) for `type` and `options`. Throws
    /// std::system_error.
    void add(const std::string& type, const std::string& target, const std::string& options);

private:
    void mount(const std::string& source, const std::string& target, const char* type,
               unsigned long flags, const char* options);

    std::vector<std::string> targets_;
};

} // namespace kelmar::test
