#pragma once

namespace kelmar::test {

/// Lets the servers that GNUstep starts in the background below this process (for the clipboard,
/// for notifications) end with the object, instead of staying on the machine.
class Servants {
public:
    Servants();
    Servants(const Servants&) = delete;
    Servants& operator=(const Servants&) = delete;
    ~Servants();
};

} // namespace kelmar::test
