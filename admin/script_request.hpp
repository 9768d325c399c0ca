#pragma once

#include <optional>
#include <string>
#include <vector>

/// What the administrator's script is asked to do, and why.
namespace kelmar {

/// The sentence that the password prompt shows: for an installation for all users, else for files
/// of the user's own installation that are not theirs, else for shared data.
std::string administratorReason(bool allUsers, bool ownFiles);

/// What is known about the user who asks, independently of the request.
struct Asker {
    std::string home;               ///< from the account database, standardised
    std::string temporaryDirectory; ///< as the system reports it, standardised
};

/// The sentence for a request to the script with these arguments. Absent if this program would not
/// make that request for `asker`: a test root, somebody else's home, a status file outside this
/// program's folder in the asker's temporary folder, or anything unknown. The script itself checks
/// which shared folders are Kelmar's.
std::optional<std::string> reasonForRequest(const std::vector<std::string>& arguments,
                                            const Asker& asker);

} // namespace kelmar
