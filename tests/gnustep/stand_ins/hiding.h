#pragma once

/// From now on a view that is hidden takes the keyboard's focus from whatever has it inside, as the
/// Mac's reference says; GNUstep leaves it there. Here nobody has it then, where on the Mac it may
/// go on to another view.
void KelmarInstallHiding();
