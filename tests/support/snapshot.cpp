#include "tests/support/snapshot.hpp"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <sys/stat.h>

namespace kelmar::test {

namespace {

namespace fs = std::filesystem;

std::string describe(const fs::path& path, bool withTimes) {
    struct stat status {};

    if (::lstat(path.c_str(), &status) != 0) {
        return "unreadable";
    }
    std::ostringstream text;
    text << std::oct << status.st_mode << std::dec << ' ' << status.st_uid << ':' << status.st_gid;
    if (withTimes) {
        text << ' ' << status.st_mtim.tv_sec << '.' << status.st_mtim.tv_nsec << ' '
             << status.st_ctim.tv_sec << '.' << status.st_ctim.tv_nsec;
    }
    if (S_ISLNK(status.st_mode)) {
        text << " -> " << fs::read_symlink(path).native();
    } else if (S_ISREG(status.st_mode)) {
        text << ' ' << status.st_size << '\n' << std::ifstream(path, std::ios::binary).rdbuf();
    }
    return text.str();
}

std::map<std::string, std::string> walk(const std::string& root, bool withTimes) {
    std::map<std::string, std::string> all;
    if (!fs::exists(fs::symlink_status(root))) {
        return all;
    }
    all[""] = describe(root, withTimes);
    if (!fs::is_directory(fs::symlink_status(root))) {
        return all;
    }
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
        all[entry.path().native().substr(root.size())] = describe(entry.path(), withTimes);
    }
    return all;
}

} // namespace

std::map<std::string, std::string> snapshot(const std::string& root) {
    return walk(root, true);
}

std::map<std::string, std::string> contents(const std::string& root) {
    return walk(root, false);
}

} // namespace kelmar::test
