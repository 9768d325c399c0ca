#pragma once

namespace kelmar {

/// Lets screen readers read and select the text of a `LogView`. Call it once, before the first
/// window.
void installAccessibleLog();

} // namespace kelmar
