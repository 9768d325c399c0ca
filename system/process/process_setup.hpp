#pragma once

namespace kelmar {

/// Resets inherited descriptors and signal dispositions; called once, first thing in `main`.
///
/// Opens standard input, output and error on the null device if they are closed. Otherwise a file
/// opened later would get their numbers, and output would go into it.
///
/// Ignores SIGPIPE: if a reader goes away, the write fails, and the uninstall continues. Children
/// get the default disposition (see `startChild`).
///
/// Resets SIGCHLD to its default: with an inherited SIG_IGN the system would discard exit statuses
/// (waitpid(2)).
void prepareProcess();

} // namespace kelmar
