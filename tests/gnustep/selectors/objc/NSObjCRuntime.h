// What the Mac's <objc/NSObjCRuntime.h> says of numbers, for reading the declarations without a
// Mac.
#pragma once

#include <stdbool.h>
#include <stddef.h>

typedef bool BOOL;
typedef long NSInteger;
typedef unsigned long NSUInteger;

// <objc/objc-api.h>, by way of <Foundation/NSObjCRuntime.h>
#define NS_DESIGNATED_INITIALIZER __attribute__((objc_designated_initializer))

#define YES ((BOOL)1)
#define NO ((BOOL)0)
#define nil ((id)0)
#define Nil ((Class)0)
