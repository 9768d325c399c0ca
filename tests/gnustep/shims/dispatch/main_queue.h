#pragma once

/// From now on the run loop of this thread, which is to be the main one, serves the main queue.
void KelmarInstallMainQueue();
