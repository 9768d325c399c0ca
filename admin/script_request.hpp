#pragma once

#include <optional>
#include <string>
#include <vector>

/// What the administrator's script is asked for, and why.
namespace kelmar {

/// The sentence that the password prompt shows: for an installation for all users, else for files
/// of the user's own installation that are not theirs, else for shared data.
std::string administratorReason(bool allUsers, bool ownFiles);

/// What is known of the user who asks, whatever a request says.
struct Asker {
    std::string home;               ///< from the account database, standardised
    std::string temporaryDirectory; ///< as the system reports it, standardised
};

/// The sentence for a request of the script with these arguments; absent when they are none that
/// this program makes for `asker`: a test root, somebody else's home, a status file elsewhere than
/// in a folder of this program's in the asker's temporary folder, or anything unknown. Which shared
/// folders are Kelmar's is the script's to check.
std::optional<std::string> reasonForRequest(const std::vector<std::string>& arguments,
                                            const Asker& asker);

} // namespace kelmar
