#pragma once

namespace kelmar {

/// Resets inherited descriptors and signal dispositions; called once, first thing in `main`.
///
/// Opens standard input, output and error on the null device where they came closed: a file opened
/// later would otherwise take their numbers, and output would go into it.
///
/// Ignores SIGPIPE, so that a reader that goes away does not stop an uninstall half-way: the write
/// fails instead. Children get the default back (see `startChild`).
///
/// Resets SIGCHLD to its default: with an inherited SIG_IGN the system would throw exit statuses
/// away (waitpid(2)).
void prepareProcess();

} // namespace kelmar
