#pragma once

#import <Foundation/Foundation.h>

/// GNUstep declares the Mac's activities and has none. These are counted, for tests to read.
struct KelmarActivityCounts {
    int begun = 0;     ///< with what keeps the process awake and the system from sleeping
    int underWay = 0;  ///< of them, not yet ended
    int otherKind = 0; ///< with other options
};

KelmarActivityCounts KelmarActivities();
