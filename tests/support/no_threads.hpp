#pragma once

#include <cstddef>

#include <pthread.h>

namespace kelmar::test {

/// As long as it lives, no thread can be started in this process: each would get a stack that no
/// address space has room for (pthread_setattr_default_np(3)), which pthread_create(3) answers as
/// it does where the system allows no more of them.
class NoThreads {
public:
    NoThreads() {
        ::pthread_getattr_default_np(&before_);
        pthread_attr_t attributes;
        ::pthread_attr_init(&attributes);
        constexpr std::size_t tooLarge = std::size_t{1} << 55;
        ::pthread_attr_setstacksize(&attributes, tooLarge);
        ::pthread_setattr_default_np(&attributes);
        ::pthread_attr_destroy(&attributes);
    }

    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;

    ~NoThreads() {
        ::pthread_setattr_default_np(&before_);
        ::pthread_attr_destroy(&before_);
    }

private:
    pthread_attr_t before_{};
};

} // namespace kelmar::test
