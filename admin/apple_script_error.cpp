#include "admin/apple_script_error.hpp"

#include <algorithm>
#include <array>

namespace kelmar {

namespace {

/// userCanceledErr of Apple events, and of Authorization Services errAuthorizationDenied,
/// errAuthorizationCanceled and errAuthorizationInteractionNotAllowed.
constexpr std::array<std::int64_t, 4> refusals{-128, -60005, -60006, -60007};

} // namespace

AdministratorError administratorError(std::optional<std::int64_t> number,
                                      const std::optional<std::string>& message) {
    const std::int64_t known = number.value_or(0);
    if (std::find(refusals.begin(), refusals.end(), known) != refusals.end()) {
        return AdministratorError::cancelled();
    }
    return AdministratorError::failed(message.value_or("error " + std::to_string(known)));
}

} // namespace kelmar
