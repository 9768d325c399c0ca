#include "admin/prompt_process.hpp"
#include "app/command_line_tool.hpp"
#include "app/window_application.hpp"
#include "system/process/process_setup.hpp"
#include "system/process/standard_streams.hpp"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include <unistd.h>

namespace {

/// As root, every file would look removable without a password, and the home folder would be
/// root's. Neither matters under a test root. Whether the variable's value is valid is checked
/// later.
bool mayRun() {
    return ::getuid() != 0 || std::getenv("KELMAR_UNINSTALLER_TEST_ROOT") != nullptr;
}

} // namespace

int main(int count, char** arguments) {
    kelmar::prepareProcess();
    if (!mayRun()) {
        kelmar::printErrorLine("Open Kelmar Uninstaller as yourself, not as root: it asks for an "
                               "administrator's password when it needs one.");
        return EXIT_FAILURE;
    }
    // A caller of execve(2) may pass no arguments at all, not even the program's name.
    const std::vector<std::string> options(arguments + (count > 0 ? 1 : 0), arguments + count);
    if (const std::optional<int> status = kelmar::PromptProcess::run(options)) {
        return *status;
    }
    const std::optional<std::int32_t> status = kelmar::CommandLineTool::run(options);
    return status ? *status : kelmar::runWindowApplication();
}
