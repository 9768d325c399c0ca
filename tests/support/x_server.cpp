#include "tests/support/x_server.hpp"

#include <unistd.h>

namespace kelmar::test {

namespace {

constexpr const char* executable = "/usr/bin/Xvfb";

} // namespace

std::optional<std::string> XServer::skipReason() {
    return ::access(executable, X_OK) == 0
               ? std::nullopt
               : std::optional<std::string>("a window needs a screen, and there is no Xvfb here");
}

XServer::XServer(int width, int height)
    : server_(executable, {"-displayfd", BackgroundProgram::descriptor, "-screen", "0",
                           std::to_string(width) + "x" + std::to_string(height) + "x24",
                           "-nolisten", "tcp", "-ac", "-noreset"}),
      name_(":" + server_.firstLine()) {}

} // namespace kelmar::test
