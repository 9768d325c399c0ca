#include "tests/support/temporary_folder.hpp"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <system_error>

namespace kelmar::test {

TemporaryFolder::TemporaryFolder() {
    std::string pattern =
        std::filesystem::canonical(std::filesystem::temp_directory_path()) / "kelmar-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), pattern);
    }
    path_ = pattern;
    // Other users may search it: tests run programs as them.
    std::filesystem::permissions(path_, std::filesystem::perms(0755));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
    if (error) {
        std::cerr << "left behind: " << path_ << ": " << error.message() << '\n';
    }
}

} // namespace kelmar::test
