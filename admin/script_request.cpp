#include "admin/script_request.hpp"

#include "admin/status_folder.hpp"

#include <cstddef>

namespace kelmar {

namespace {

/// Parses a request from its beginning.
class Reader {
public:
    explicit Reader(const std::vector<std::string>& arguments) : arguments_(arguments) {}

    bool take(const std::string& option) {
        const bool found = at_ < arguments_.size() && arguments_[at_] == option;
        at_ += found ? 1 : 0;
        return found;
    }

    /// The value of the option just taken; empty if it is missing.
    std::string value() { return at_ < arguments_.size() ? arguments_[at_++] : std::string(); }

    [[nodiscard]] bool isAtEnd() const { return at_ == arguments_.size(); }

private:
    const std::vector<std::string>& arguments_;
    std::size_t at_ = 0;
};

} // namespace

std::string administratorReason(bool allUsers, bool ownFiles) {
    const std::string start = "Kelmar Uninstaller needs an administrator's password to ";
    if (allUsers) {
        return start + "remove Kelmar, which is installed for all users of this Mac.";
    }
    if (ownFiles) {
        return start + "remove files of Kelmar that belong to the system.";
    }
    return start + "delete the Kelmar data shared by all users of this Mac.";
}

std::optional<std::string> reasonForRequest(const std::vector<std::string>& arguments,
                                            const Asker& asker) {
    Reader reader(arguments);
    if (!reader.take("--status") ||
        !StatusFolder::isFileBelow(asker.temporaryDirectory, reader.value())) {
        return std::nullopt;
    }
    const bool allUsers = reader.take("--all-users");
    bool sharedData = false;
    while (reader.take("--shared-data")) {
        sharedData = true;
        if (!reader.value().starts_with("/Users/Shared/@Kelmar/")) {
            return std::nullopt;
        }
    }
    const bool home = reader.take("--home");
    if (home && reader.value() != asker.home) {
        return std::nullopt;
    }
    if (!reader.isAtEnd() || !(allUsers || sharedData || home)) {
        return std::nullopt;
    }
    return administratorReason(allUsers, home);
}

} // namespace kelmar
