#include "system/process/processes.hpp"
#include "system/text/utf8.hpp"

#include <algorithm>
#include <array>

#include <libproc.h>

namespace kelmar {

std::vector<pid_t> processIdentifiers() {
    constexpr int slack = 64; // room for processes that start between the two calls
    const int count = ::proc_listallpids(nullptr, 0);
    if (count < 1) {
        return {};
    }
    std::vector<pid_t> identifiers(static_cast<std::size_t>(count) + slack, 0);
    const int listed = ::proc_listallpids(identifiers.data(),
                                          static_cast<int>(identifiers.size() * sizeof(pid_t)));
    identifiers.resize(std::min(static_cast<std::size_t>(std::max(listed, 0)), identifiers.size()));
    std::erase_if(identifiers, [](pid_t identifier) { return identifier < 1; });
    return identifiers;
}

std::optional<std::string> executablePath(pid_t process) {
    // NOLINTNEXTLINE(*-member-init): filled by the system before it is read
    std::array<char, PROC_PIDPATHINFO_MAXSIZE> path;
    const int length = ::proc_pidpath(process, path.data(), path.size());
    if (length <= 0) {
        return std::nullopt;
    }
    return decodeUtf8({path.data(), static_cast<std::size_t>(length)});
}

std::optional<uid_t> processOwner(pid_t process) {
    proc_bsdshortinfo info{};
    constexpr int size = sizeof info;
    static_assert(size == 64);
    // A shorter result is no answer: the process has gone, or is hidden.
    if (::proc_pidinfo(process, PROC_PIDT_SHORTBSDINFO, 0, &info, size) != size) {
        return std::nullopt;
    }
    return info.pbsi_uid;
}

} // namespace kelmar
