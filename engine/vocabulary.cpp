#include "engine/vocabulary.hpp"

std::size_t std::hash<kelmar::Uninstall::Failure>::operator()(
    const kelmar::Uninstall::Failure& failure) const noexcept {
    const std::hash<std::string> text;
    // The factor makes the hash depend on the order of path and reason.
    constexpr std::size_t factor = 31;
    return text(failure.path) * factor + text(failure.reason);
}
