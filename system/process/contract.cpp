#include "system/process/contract.hpp"

#include "system/process/standard_streams.hpp"

#include <cstdlib>
#include <string>

namespace kelmar {

void brokenContract(std::string_view what) {
    printErrorLine("Kelmar Uninstaller: broken contract: " + std::string(what));
    std::abort();
}

} // namespace kelmar
