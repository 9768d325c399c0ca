#include "system/files/files.hpp"

#include "system/files/file_descriptor.hpp"
#include "system/files/open_folder.hpp"
#include "system/files/reading.hpp"

#include <algorithm>
#include <cerrno>
#include <exception>
#include <future>
#include <memory>
#include <new>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {

bool exists(const std::string& path) {
    struct stat status {};

    return ::lstat(path.c_str(), &status) == 0;
}

std::optional<std::vector<std::string>> sortedNames(const std::string& path) {
    const OpenFolder folder(::opendir(path.c_str()));
    if (!folder) {
        return std::nullopt;
    }
    std::vector<std::string> names;
    while (const dirent* const entry = nextEntry(folder)) {
        names.emplace_back(entry->d_name);
    }
    if (errno != 0) {
        return std::nullopt;
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<std::vector<std::string>> sortedNamesWithin(std::chrono::milliseconds patience,
                                                          const std::string& path) {
    const auto names = std::make_shared<std::promise<std::optional<std::vector<std::string>>>>();
    std::future<std::optional<std::vector<std::string>>> answer = names->get_future();
    try {
        std::thread([names, path] {
            try {
                names->set_value(sortedNames(path));
            } catch (const std::bad_alloc&) {
                names->set_exception(std::current_exception());
            }
        }).detach();
    } catch (const std::system_error&) {
        return sortedNames(path); // no thread can be started
    }
    return answer.wait_for(patience) == std::future_status::ready ? answer.get() : std::nullopt;
}

std::optional<std::string> readFile(const std::string& path, std::size_t limit) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));

    struct stat status {};

    if (!file.isOpen() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode) ||
        static_cast<std::size_t>(status.st_size) > limit) {
        return std::nullopt;
    }
    std::string bytes;
    const bool whole = appendToEnd(file.get(), bytes, static_cast<std::size_t>(status.st_size));
    return whole ? std::optional(std::move(bytes)) : std::nullopt;
}

bool isLink(const std::string& path) {
    struct stat status {};

    return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

bool removeFile(const std::string& path) {
    return ::unlink(path.c_str()) == 0;
}

std::error_code removeFolder(const std::string& path) {
    return ::rmdir(path.c_str()) == 0 ? std::error_code()
                                      : std::error_code(errno, std::generic_category());
}

} // namespace kelmar
