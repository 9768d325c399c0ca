#pragma once

#include "tests/gnustep/harness/run_loop.hpp"
#include "tests/gnustep/harness/views.hpp"
#include "tests/ui/recorded_actions.hpp"
#include "ui/appkit/page.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelmar::test {

/// A page in a window of its usual size; what its controls ask for is recorded.
class PageInAWindow : public testing::Test {
protected:
    PageInAWindow();
    ~PageInAWindow() override;

    /// Shows the page, and lets what was put off happen.
    void render(const Page& shown);

    template <typename View>
    View* seen(const std::string& text) const {
        return test::seen<View>(page, text);
    }

    RecordedActions recordedActions;
    WindowActions actions = recordInto(recordedActions);
    NSWindow* window = nil;
    KelmarPageView* page = nil;

private:
    NSAutoreleasePool* pool_ = [NSAutoreleasePool new];
};

} // namespace kelmar::test
