#include "app/window_application.hpp"
#include "system/process/resources.hpp"
#include "system/process/standard_streams.hpp"

#include <optional>
#include <string>

#include <dlfcn.h>

namespace kelmar {

namespace {

/// The window is a module beside the executable, so that the command line neither needs nor waits
/// for a toolkit. Null when it is not there, or when what it needs is not. The module itself is
/// linked to be resolved at once (ld(1), -z now); the libraries below it need not be.
void (*windowOfModule())() {
    const std::optional<std::string> path = resourcePath("kelmar-window.so");
    void* const module = path ? ::dlopen(path->c_str(), RTLD_LAZY | RTLD_LOCAL) : nullptr;
    void* const entry = module != nullptr ? ::dlsym(module, "kelmarRunWindow") : nullptr;
    return reinterpret_cast<void (*)()>(entry); // dlsym(3): what POSIX wants to be possible
}

} // namespace

int runWindowApplication() {
    if (void (*const run)() = windowOfModule()) {
        run();
        return 0;
    }
    printErrorLine("Kelmar Uninstaller can't open its window here: that takes kelmar-window.so "
                   "beside the program, and Qt 6. Use --scan to list what Kelmar has here, or "
                   "--help for all options.");
    return 2;
}

} // namespace kelmar
