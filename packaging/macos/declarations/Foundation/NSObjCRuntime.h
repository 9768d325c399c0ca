// Apple Developer Documentation: Foundation, Object Runtime
#pragma once

#import <objc/NSObjCRuntime.h>

#ifdef __cplusplus
#define FOUNDATION_EXPORT extern "C"
#else
#define FOUNDATION_EXPORT extern
#endif

// In C++ a set of options is its number type, and only its values are an enumeration.
#define NS_ENUM(type, name) enum name : type name; enum name : type
#define NS_OPTIONS(type, name) type name; enum : type

#define NS_REQUIRES_NIL_TERMINATION __attribute__((sentinel))

#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
