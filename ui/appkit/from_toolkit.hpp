#pragma once

namespace kelmar {

/// Runs `job` for the toolkit, which called us. A C++ exception must not pass through its frames,
/// where nothing would be put in order: it ends the program instead.
template <typename Job>
void fromToolkit(const Job& job) noexcept {
    job();
}

} // namespace kelmar
