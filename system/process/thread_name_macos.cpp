#include "system/process/thread_name.hpp"

#include <pthread.h>

namespace kelmar {

void nameThisThread(const std::string& name) {
    constexpr std::size_t room = 63; // MAXTHREADNAMESIZE is 64 with the null character
    ::pthread_setname_np(name.substr(0, room).c_str());
}

} // namespace kelmar
