// The root class of the Mac's <objc/NSObject.h>, for reading the declarations without a Mac.
// Nothing of it is compared: it is the language's.
#pragma once

#include <objc/NSObjCRuntime.h>

@protocol NSObject
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
@end
