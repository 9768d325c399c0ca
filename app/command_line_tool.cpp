#include "app/command_line_tool.hpp"

#include "app/scan_listing.hpp"
#include "app/uninstall_command.hpp"
#include "discovery/kelmar_paths.hpp"
#include "system/process/background_process.hpp"
#include "system/process/standard_streams.hpp"

#include <algorithm>
#include <string_view>

namespace kelmar::CommandLineTool {

namespace {

constexpr std::int32_t success = 0;
constexpr std::int32_t usageError = 2;

constexpr std::string_view usage =
    R"(Usage: "Kelmar Uninstaller.app/Contents/MacOS/Kelmar Uninstaller" [option]

  (none)                       Open the window.
  --scan                       List what Kelmar has on this Mac, with the size of each data folder.
  --uninstall --delete-data    Remove Kelmar and delete every Kelmar data folder.
  --uninstall --keep-data      Remove Kelmar and keep its data.

An install for all users still asks for an administrator's password, in a window.
)";

bool isOption(const std::string& argument) {
    return argument.starts_with("--");
}

std::int32_t printUsage(std::int32_t status) {
    printLine(usage);
    return status;
}

bool contains(const std::vector<std::string>& options, std::string_view option) {
    return std::find(options.begin(), options.end(), option) != options.end();
}

std::int32_t uninstall(const std::vector<std::string>& options) {
    const bool deleteData = contains(options, "--delete-data");
    if (deleteData == contains(options, "--keep-data")) {
        return printUsage(usageError);
    }
    return kelmar::uninstall(KelmarPaths::current(), deleteData);
}

} // namespace

std::optional<std::int32_t> run(const std::vector<std::string>& arguments) {
    std::vector<std::string> options;
    std::copy_if(arguments.begin(), arguments.end(), std::back_inserter(options), isOption);
    if (options.empty()) {
        return std::nullopt;
    }
    becomeBackgroundProcess();
    if (options.front() == "--scan") {
        printScan(KelmarPaths::current());
        return success;
    }
    if (options.front() == "--uninstall") {
        return uninstall(options);
    }
    return printUsage(options.front() == "--help" ? success : usageError);
}

} // namespace kelmar::CommandLineTool
