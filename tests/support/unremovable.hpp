#pragma once

#include <string>

namespace kelmar::test {

/// Sets the immutable flag of a file or folder for the life of the object, so that not even root
/// can remove it. macOS calls such a file "Locked".
class Unremovable {
public:
    static constexpr const char* skipReason =
        "files can't be made immutable here (chattr(1) needs root and "
        "a file system that knows the flag)";

    explicit Unremovable(std::string path);
    Unremovable(const Unremovable&) = delete;
    Unremovable& operator=(const Unremovable&) = delete;
    ~Unremovable();

    [[nodiscard]] bool works() const { return works_; }

private:
    std::string path_;
    bool works_;
};

} // namespace kelmar::test
