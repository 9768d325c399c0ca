#include "admin/current_user_runner.hpp"

#include "system/process/shell.hpp"
#include "system/text/strings.hpp"

namespace kelmar {

void CurrentUserRunner::run(const std::string& script, const std::vector<std::string>& arguments,
                            const std::string& /*reason*/) {
    std::vector<std::string> all{script};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const Shell::Result result = Shell::run("/bin/bash", all);
    if (result.status != 0) {
        throw AdministratorError::failed(trimmed(result.output));
    }
}

} // namespace kelmar
