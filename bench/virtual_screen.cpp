#include "bench/virtual_screen.hpp"

#include "bench/require.hpp"
#include "system/files/file_descriptor.hpp"

#include <array>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar::bench {

namespace {

constexpr int patience = 20'000; ///< milliseconds for the server to be ready

/// The number of the display that the server at the other end of `pipe` has taken.
std::string displayNumber(int pipe) {
    std::string number;
    pollfd wait{pipe, POLLIN, 0};
    char digit = 0;
    while (::poll(&wait, 1, patience) == 1 && ::read(pipe, &digit, 1) == 1 && digit != '\n') {
        number += digit;
    }
    return number;
}

/// What a desktop session adds to a window is not measured.
void leaveTheSession() {
    for (const char* name : {"WAYLAND_DISPLAY", "XAUTHORITY", "SESSION_MANAGER",
                             "XDG_CURRENT_DESKTOP", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE",
                             "QT_SCALE_FACTOR", "QT_FONT_DPI", "QT_PLUGIN_PATH"}) {
        ::unsetenv(name);
    }
    ::setenv("QT_QPA_PLATFORM", "xcb", 1);
}

} // namespace

VirtualScreen::VirtualScreen() {
    std::array<int, 2> ends{};
    require(::pipe2(ends.data(), O_CLOEXEC) == 0, "a pipe to the X server");
    const FileDescriptor reading(ends[0]);
    FileDescriptor writing(ends[1]);
    const std::string number = std::to_string(writing.get());
    server_ = ::fork();
    require(server_ >= 0, "a process for the X server");
    if (server_ == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        ::fcntl(writing.get(), F_SETFD, 0);
        const int nothing = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(nothing, STDERR_FILENO);
        ::execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "1280x900x24",
                 "-nolisten", "tcp", "-noreset", nullptr);
        ::_exit(EXIT_FAILURE);
    }
    writing = FileDescriptor();
    const std::string display = displayNumber(reading.get());
    require(!display.empty(), "an X server: Xvfb did not start");
    leaveTheSession();
    ::setenv("DISPLAY", (":" + display).c_str(), 1);
}

VirtualScreen::~VirtualScreen() {
    ::kill(server_, SIGTERM);
    ::waitpid(server_, nullptr, 0);
}

} // namespace kelmar::bench
