// Apple Developer Documentation: AppKit
#pragma once

#import <Foundation/Foundation.h>

#ifdef __cplusplus
#define APPKIT_EXTERN extern "C"
#else
#define APPKIT_EXTERN extern
#endif
