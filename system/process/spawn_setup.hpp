#pragma once

#include "system/files/file_descriptor.hpp"

#include <spawn.h>

/// The parts of starting a child in which systems differ.
namespace kelmar {

/// A pipe whose ends no child inherits, or the errno value of what failed.
struct PrivatePipe {
    FileDescriptor reading;
    FileDescriptor writing;
    int error = 0;
};

PrivatePipe openPrivatePipe();

/// Adds to `actions` and `flags` what keeps every descriptor from the child that no earlier action
/// gave it, whoever opened it and however. 0, or the errno value of what failed.
int inheritNothingElse(posix_spawn_file_actions_t& actions, short& flags);

/// The environment of this process, as execve(2) takes it.
char** environmentForChildren();

} // namespace kelmar
