// See objc/NSObjCRuntime.h. As on Macs with Intel's processors, whose values GNUstep has.
#pragma once

#define TARGET_ABI_USES_IOS_VALUES 0
