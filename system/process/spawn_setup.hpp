#pragma once

#include <spawn.h>

/// The parts of starting a child in which systems differ.
namespace kelmar {

/// Opens a pipe whose ends no child inherits; `ends` as pipe(2) fills it. 0, or the errno value of
/// what failed.
int openPrivatePipe(int (&ends)[2]);

/// Adds to `actions` and `flags` what keeps every descriptor from the child that no earlier action
/// gave it, whoever opened it and however.
void inheritNothingElse(posix_spawn_file_actions_t& actions, short& flags);

/// The environment of this process, as execve(2) takes it.
char** environmentForChildren();

} // namespace kelmar
