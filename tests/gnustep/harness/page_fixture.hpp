#pragma once

#include "tests/gnustep/harness/turning.hpp"
#include "tests/gnustep/harness/views.hpp"
#include "tests/ui/asked.hpp"
#include "ui/appkit/page.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelmar::test {

/// A page in a window of its usual size; what its controls ask for is written down.
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

    std::vector<std::string> asked;
    WindowActions actions = writingTo(asked);
    NSWindow* window = nil;
    KelmarPageView* page = nil;

private:
    NSAutoreleasePool* pool_ = [NSAutoreleasePool new];
};

} // namespace kelmar::test
