#include "system/process/thread_name.hpp"

#include <pthread.h>

namespace kelmar {

void nameThisThread(const std::string& name) {
    constexpr std::size_t room = 15; // pthread_setname_np(3): 16 bytes with the null character
    ::pthread_setname_np(::pthread_self(), name.substr(0, room).c_str());
}

} // namespace kelmar
