#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Services (launch agents) of the current user's login session, through launchctl(1). Each call
/// runs /bin/launchctl once and blocks until it has ended. May be called from any thread.
namespace kelmar::Launchctl {

/// Returns true if the service `label` is loaded. launchctl(1), `print`: exit status 0 for a loaded
/// service.
bool isLoaded(std::string_view label);

/// The path of the loaded service's property list; absent if launchd names none. The manual page
/// warns that the text of `print` is no interface. Without the path the service can be stopped, but
/// not started again.
std::optional<std::string> propertyList(std::string_view label);

/// Finds that path in `output`, printed by `launchctl print`: the text after "path = " on the first
/// line that begins so, ignoring leading blanks. Absent if no line does.
std::optional<std::string> propertyListIn(std::string_view output);

/// Why a service could not be stopped.
struct Complaint {
    std::string message;     ///< launchctl's own words, trimmed
    std::int32_t status = 0; ///< its exit status; -1 when it could not be started
};

/// Removes the service from the session (`bootout`); absent if it is no longer loaded. Exit
/// statuses 3 ("no such process") and 113 ("could not find service") mean that it was not loaded.
/// launchctl may return before the service's process has ended.
std::optional<Complaint> stop(std::string_view label);

/// Loads the service that the file `propertyList` describes (`bootstrap`). Absent on success, else
/// launchctl's own words, trimmed.
std::optional<std::string> start(const std::string& propertyList);

} // namespace kelmar::Launchctl
