#pragma once

/// From now on the dictionary that a bundle made of its Info.plist can be changed, as on the Mac,
/// where CFBundle reads property lists with mutable containers.
void KelmarInstallBundle();
