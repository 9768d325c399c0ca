// See ../objc/NSObjCRuntime.h. What a declaration says about versions is not compared.
#pragma once

#define API_DEPRECATED(...)
