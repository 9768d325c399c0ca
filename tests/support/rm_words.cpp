#include "tests/support/rm_words.hpp"

#include "tests/support/program.hpp"

namespace kelmar::test {

std::string rmRefusal(const std::string& path, const std::string& reason) {
    Program withoutOperand;
    withoutOperand.path = "/bin/rm";
    const std::string complaint = withoutOperand.run().error;
    return complaint.substr(0, complaint.find(':')) + ": cannot remove '" + path + "': " + reason;
}

} // namespace kelmar::test
