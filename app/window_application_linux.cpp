#include "app/window_application.hpp"
#include "system/process/resources.hpp"
#include "system/process/standard_streams.hpp"
#include "system/text/harmless_text.hpp"

#include <optional>
#include <string>

#include <dlfcn.h>

namespace kelmar {

namespace {

constexpr int noWindow = 2;

int complain(const std::string& why) {
    printErrorLine("Kelmar Uninstaller can't open its window here: " + harmlessText(why) +
                   ". Use --scan to list what Kelmar has here, or --help for all options.");
    return noWindow;
}

} // namespace

// The window is a module beside the executable, so that the command line neither depends on a
// toolkit nor loads one. The module itself is linked to be resolved at load (ld(1), -z now); its
// libraries resolve lazily.
int runWindowApplication() {
    const std::optional<std::string> path = resourcePath("kelmar-window.so");
    if (!path) {
        return complain("that takes kelmar-window.so beside the program, and Qt 6");
    }
    void* const module = ::dlopen(path->c_str(), RTLD_LAZY | RTLD_LOCAL);
    void* const entry = module != nullptr ? ::dlsym(module, "kelmarRunWindow") : nullptr;
    if (entry == nullptr) {
        const char* const words = ::dlerror();
        return complain(words != nullptr ? words : "kelmar-window.so has no window");
    }
    reinterpret_cast<void (*)()>(entry)(); // dlsym(3): POSIX requires this cast
    return 0;
}

} // namespace kelmar
