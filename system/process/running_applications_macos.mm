#include "system/process/running_applications.hpp"
#include "system/text/foundation_text_macos.hpp"

#import <AppKit/AppKit.h>

namespace kelmar {

namespace {

/// The system's own object, which still identifies the application after its process identifier has
/// been reused.
std::shared_ptr<void> handleOf(NSRunningApplication* application) {
    return {[application retain],
            [](void* object) { [static_cast<NSRunningApplication*>(object) release]; }};
}

NSRunningApplication* applicationOf(const std::shared_ptr<void>& handle) {
    return static_cast<NSRunningApplication*>(handle.get());
}

} // namespace

bool RunningApplication::terminate() const {
    @autoreleasepool {
        return [applicationOf(handle) terminate];
    }
}

bool RunningApplication::forceTerminate() const {
    @autoreleasepool {
        return [applicationOf(handle) forceTerminate];
    }
}

std::vector<RunningApplication> runningApplications(const ApplicationIdentity& identity) {
    std::vector<RunningApplication> running;
    @autoreleasepool {
        NSArray* const found = [NSRunningApplication
            runningApplicationsWithBundleIdentifier:foundationText(identity.bundleIdentifier)];
        for (NSRunningApplication* application in found) {
            // An application that has just ended is listed with the identifier -1, which kill(2)
            // takes for "every process".
            const pid_t process = [application processIdentifier];
            if (process > 0) {
                running.push_back({HeldProcess(process), handleOf(application)});
            }
        }
    }
    return running;
}

} // namespace kelmar
