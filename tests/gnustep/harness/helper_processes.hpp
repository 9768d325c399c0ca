#pragma once

namespace kelmar::test {

/// Kills the helper processes that GNUstep starts in the background below this process (for the
/// clipboard, for notifications) when the object is destroyed; left alone they would never end.
class HelperProcesses {
public:
    HelperProcesses();
    HelperProcesses(const HelperProcesses&) = delete;
    HelperProcesses& operator=(const HelperProcesses&) = delete;
    ~HelperProcesses();
};

} // namespace kelmar::test
