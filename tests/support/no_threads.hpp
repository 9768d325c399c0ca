#pragma once

#include <cstddef>

#include <pthread.h>

namespace kelmar::test {

/// While it exists, no thread can be started in this process. Each would get a stack larger than
/// any address space (pthread_setattr_default_np(3)); pthread_create(3) then fails as it does at
/// the system's limit of threads.
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
