// See NSObjCRuntime.h.
#pragma once

#include <objc/NSObjCRuntime.h>
