#pragma once

#include <string>

namespace kelmar::test {

/// Makes a file or folder one that even root cannot remove, by its immutable flag, until the end of
/// the object's life. On the Mac people know it as "Locked".
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
