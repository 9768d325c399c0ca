#include "tests/support/temporary_folder.hpp"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <system_error>

#include <unistd.h>

namespace kelmar::test {

namespace {

std::filesystem::path parentIn(TemporaryFolder::Storage storage) {
    constexpr const char* memory = "/dev/shm";
    return storage == TemporaryFolder::Storage::memory && ::access(memory, W_OK) == 0
               ? std::filesystem::path(memory)
               : std::filesystem::temp_directory_path();
}

} // namespace

TemporaryFolder::TemporaryFolder(Storage storage) {
    std::string pattern = std::filesystem::canonical(parentIn(storage)) / "kelmar-XXXXXX";
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
