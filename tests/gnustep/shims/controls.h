#pragma once

/// From now on controls say their sizes as the Mac's do: a text that wraps is as high as its lines,
/// where GNUstep takes it for one line; a switch has a size at all. A switch can be
/// pressed from the start.
void KelmarInstallControls();
