// Stands for the Mac's <dispatch/dispatch.h> (dispatch(3)), as far as the window uses it: functions
// without blocks, the main queue and the global ones. It shows that the program hands its jobs over
// as it should, and nothing about how the Mac's own queues behave.
#pragma once

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct KelmarQueue* dispatch_queue_t;
typedef void (*dispatch_function_t)(void* context);
typedef uint64_t dispatch_time_t;

// <sys/qos.h>
typedef enum qos_class_t : unsigned {
    QOS_CLASS_USER_INTERACTIVE = 0x21,
    QOS_CLASS_USER_INITIATED = 0x19,
    QOS_CLASS_DEFAULT = 0x15,
    QOS_CLASS_UTILITY = 0x11,
    QOS_CLASS_BACKGROUND = 0x09,
    QOS_CLASS_UNSPECIFIED = 0x00,
} qos_class_t;

/// The class of the global queue that the calling thread works for; the main thread is
/// user-interactive.
qos_class_t qos_class_self(void);

#define DISPATCH_TIME_NOW (0ULL)
#define NSEC_PER_SEC 1000000000ULL
#define NSEC_PER_MSEC 1000000ULL
#define USEC_PER_SEC 1000000ULL

dispatch_queue_t dispatch_get_main_queue(void);
dispatch_queue_t dispatch_get_global_queue(intptr_t identifier, uintptr_t flags);
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta);
void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work);
void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void* context,
                      dispatch_function_t work);

#ifdef __cplusplus
}
#endif
