#include "system/process/processes_under.hpp"

#include "system/process/processes.hpp"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>

#include <unistd.h>

namespace kelmar {

namespace {

struct FreeText {
    void operator()(char* text) const { std::free(text); }
};

std::vector<std::string> prefixes(const std::vector<std::string>& folders) {
    std::vector<std::string> result;
    for (const std::string& folder : folders) {
        result.push_back(folder + "/");
        const std::unique_ptr<char, FreeText> resolved(::realpath(folder.c_str(), nullptr));
        if (resolved) {
            result.push_back(std::string(resolved.get()) + "/");
        }
    }
    return result;
}

class Inside {
public:
    explicit Inside(const std::vector<std::string>& folders) : prefixes_(prefixes(folders)) {}

    /// Returns true if `process` is not this one and runs from inside the folders.
    [[nodiscard]] bool has(pid_t process) const {
        const std::optional<std::string> path =
            process < 1 || process == ::getpid() ? std::nullopt : executablePath(process);
        return path &&
               std::any_of(prefixes_.begin(), prefixes_.end(), [&path](const std::string& prefix) {
                   return path->starts_with(prefix);
               });
    }

private:
    std::vector<std::string> prefixes_;
};

} // namespace

std::vector<pid_t> processesUnder(const std::vector<std::string>& folders) {
    const Inside inside(folders);
    std::vector<pid_t> found;
    for (const pid_t process : processIdentifiers()) {
        if (inside.has(process)) {
            found.push_back(process);
        }
    }
    return found;
}

std::vector<HeldProcess> ownProcessesUnder(const std::vector<std::string>& folders) {
    const Inside inside(folders);
    std::vector<HeldProcess> found;
    for (const pid_t process : processesUnder(folders)) {
        const HeldProcess held(process);
        if (inside.has(process) && processOwner(process) == ::getuid()) {
            found.push_back(held);
        }
    }
    return found;
}

} // namespace kelmar
