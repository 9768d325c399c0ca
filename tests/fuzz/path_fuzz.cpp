#include "discovery/kelmar_paths.hpp"
#include "system/text/path_text.hpp"
#include "tests/fuzz/require.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using kelmar::KelmarPaths;
using kelmar::fuzz::require;

namespace {

bool isStandard(std::string_view path) {
    if (path == "/") {
        return true;
    }
    const std::string framed = std::string(path) + "/";
    return path.starts_with('/') && !path.ends_with('/') &&
           framed.find("//") == std::string::npos && framed.find("/./") == std::string::npos &&
           framed.find("/../") == std::string::npos;
}

/// A path is shown as it is, or with the home folder or the test root cut off in front.
void checkDisplay(const KelmarPaths& paths, const std::string& path) {
    const std::string shown = paths.display(path);
    const bool inHome = shown.starts_with('~') && paths.home + shown.substr(1) == path;
    const bool inSystem = paths.testRoot && paths.systemRoot + shown == path;
    require(shown == path || inHome || inSystem);
}

} // namespace

/// The input is a root and a path below, with a null character between.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::string root(input.substr(0, input.find('\0')));
    const std::string rest(input.substr(root.size()));

    const std::string standard = kelmar::standardised("/" + root);
    require(isStandard(standard));
    require(kelmar::standardised(standard) == standard);
    require(kelmar::standardised(standard + "/") == standard);
    require(kelmar::standardised(standard + "/x/..") == standard);

    const std::string base = standard == "/" ? "" : standard;
    const KelmarPaths under{base + "/system", base + "/home", base + "/tmp", standard};
    const KelmarPaths real{"", standard, "/tmp", {}};
    for (const KelmarPaths& paths : {under, real}) {
        for (const std::string& path :
             {rest, paths.home, paths.home + rest, paths.home + "/" + rest, paths.systemRoot + rest,
              paths.systemRoot + "/" + rest, standard + rest}) {
            checkDisplay(paths, path);
        }
    }
    return 0;
}
