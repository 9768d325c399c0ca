#pragma once

namespace kelmar {

/// Frees the process from what its parent may have left it; called once, first thing in `main`.
///
/// - Standard input, output and error are open: one that came closed is connected to the null
/// device,
///   so that no file opened later becomes "standard output" by taking its number.
/// - SIGPIPE is ignored: a reader that goes away must not stop an uninstall half-way; the write
/// fails
///   instead. Children get the default back (see `startChild`).
/// - SIGCHLD has its default action: ignored, the system would throw exit statuses away
/// (waitpid(2)).
void prepareProcess();

} // namespace kelmar
