#pragma once

/// GNUstep's scroll views, told to hide a scroller that has nothing to scroll, come to no end over
/// a document that just fits: the scroller takes the room that it needs no more when it is gone.
/// From now on they are told, and show it all the same. And they are resized by setFrameSize:
/// alone, as views of the Mac are, so that who overrides it hears of every size.
void KelmarInstallScrollViews();
