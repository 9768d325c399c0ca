#include "system/files/file_descriptor.hpp"
#include "system/process/held_process.hpp"

#include <cerrno>
#include <csignal>

#include <sys/syscall.h>
#include <unistd.h>

namespace kelmar {

namespace {

/// pidfd_open(2), for which the C library of Debian 12 has no function; -1 on a kernel before 5.3.
FileDescriptor openProcess(pid_t process) {
    return FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
}

} // namespace

HeldProcess::HeldProcess(pid_t process) : number_(process) {
    FileDescriptor opened = openProcess(process);
    if (opened.isOpen() || errno == ENOSYS) {
        identity_ = std::make_shared<FileDescriptor>(std::move(opened));
    }
}

bool HeldProcess::signal(int signal) const {
    const auto* const opened = static_cast<const FileDescriptor*>(identity_.get());
    if (opened == nullptr) {
        return false;
    }
    return opened->isOpen()
               ? ::syscall(SYS_pidfd_send_signal, opened->get(), signal, nullptr, 0) == 0
               : ::kill(number_, signal) == 0;
}

} // namespace kelmar
