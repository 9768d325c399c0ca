#pragma once

#include "system/files/file_descriptor.hpp"

#include <spawn.h>

/// The platform-specific parts of starting a child.
namespace kelmar {

/// A pipe whose ends no child inherits, or the errno value of the failed call.
struct PrivatePipe {
    FileDescriptor reading;
    FileDescriptor writing;
    int error = 0;
};

PrivatePipe openPrivatePipe();

/// Adds to `actions` and `flags` what closes, in the child, every descriptor that no earlier action
/// created. Returns 0, or the errno value of the failed call.
int inheritNothingElse(posix_spawn_file_actions_t& actions, short& flags);

/// The environment of this process, as execve(2) takes it.
char** environmentForChildren();

} // namespace kelmar
