#include "tests/sweep/errors.hpp"

#include <cerrno>
#include <map>

#include <sys/syscall.h>

namespace kelmar::test {

namespace {

/// From the manual page of each.
const std::map<long, std::vector<int>>& table() {
    static const std::map<long, std::vector<int>> errors {
        {SYS_openat, {EACCES, EMFILE, EIO}}, {SYS_read, {EIO, EINTR}}, {SYS_pread64, {EIO}},
            {SYS_write, {ENOSPC, EIO, EINTR}}, {SYS_newfstatat, {EACCES, EIO}}, {SYS_fstat, {EIO}},
            {SYS_statx, {EACCES, EIO}}, {SYS_getdents64, {EIO, ENOENT}},
            {SYS_readlinkat, {EACCES, ENOENT}}, {SYS_faccessat, {EACCES, EIO}},
            {SYS_faccessat2, {EACCES, EIO}}, {SYS_lseek, {EIO}}, {SYS_fcntl, {EMFILE}},
            {SYS_flock, {ENOLCK, EINTR}}, {SYS_mkdirat, {ENOSPC, EACCES}},
            {SYS_fchmod, {EPERM, EIO}}, {SYS_fchmodat, {EPERM, EIO}},
            {SYS_unlinkat, {EACCES, EBUSY, EIO}}, {SYS_linkat, {EACCES, ENOSPC}},
            {SYS_renameat2, {EACCES, ENOSPC}}, {SYS_mknodat, {EACCES, ENOSPC}},
            {SYS_chdir, {EACCES}}, {SYS_fchdir, {EACCES}}, {SYS_clone, {EAGAIN, ENOMEM}},
            {SYS_clone3, {EAGAIN, ENOMEM}}, {SYS_execve, {EACCES, ENOMEM}}, {SYS_wait4, {EINTR}},
            {SYS_pipe2, {EMFILE, ENFILE}}, {SYS_dup, {EMFILE}}, {SYS_dup3, {EBUSY, EINTR}},
            {SYS_close_range, {EMFILE}}, {SYS_pidfd_open, {EMFILE, ESRCH}},
            {SYS_pidfd_send_signal, {EPERM, ESRCH}}, {SYS_ppoll, {EINTR, ENOMEM}},
            {SYS_pselect6, {EINTR, ENOMEM}}, {SYS_clock_nanosleep, {EINTR}},
            {SYS_getrandom, {EINTR, ENOSYS}}, {SYS_socket, {EMFILE}},
            {SYS_connect, {ECONNREFUSED, EINTR}},
#if defined(__x86_64__) // which has older forms as well
            {SYS_open, {EACCES, EMFILE, EIO}}, {SYS_stat, {EACCES, EIO}},
            {SYS_lstat, {EACCES, EIO}}, {SYS_readlink, {EACCES, ENOENT}},
            {SYS_access, {EACCES, EIO}}, {SYS_mkdir, {ENOSPC, EACCES}}, {SYS_chmod, {EPERM, EIO}},
            {SYS_unlink, {EACCES, EBUSY, EIO}}, {SYS_rmdir, {EACCES, EBUSY, EIO}},
            {SYS_rename, {EACCES, ENOSPC}}, {SYS_mknod, {EACCES, ENOSPC}},
            {SYS_fork, {EAGAIN, ENOMEM}}, {SYS_vfork, {EAGAIN, ENOMEM}},
            {SYS_pipe, {EMFILE, ENFILE}}, {SYS_dup2, {EBUSY, EINTR}}, {SYS_poll, {EINTR, ENOMEM}},
            {SYS_select, {EINTR, ENOMEM}},
#endif
    };
    return errors;
}

} // namespace

std::vector<int> errorsOf(long number) {
    const auto found = table().find(number);
    return found == table().end() ? std::vector<int>{} : found->second;
}

} // namespace kelmar::test
