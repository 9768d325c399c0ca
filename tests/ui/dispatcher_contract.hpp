#pragma once

#include "ui/dispatcher.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace kelmar::test {

/// A dispatcher and the event loop that its main thread serves.
struct DispatcherWithALoop {
    std::unique_ptr<Dispatcher> (*make)();
    /// Serves events until the condition holds; false when it doesn't within some seconds.
    bool (*runUntil)(const std::function<bool()>& condition);
};

/// What every dispatcher promises, whatever toolkit has the event loop. Each toolkit's tests
/// instantiate it.
class DispatcherContract : public testing::TestWithParam<DispatcherWithALoop> {
protected:
    static bool eventually(const std::function<bool()>& condition) {
        return GetParam().runUntil(condition);
    }

    const std::unique_ptr<Dispatcher> dispatcher = GetParam().make();
};

} // namespace kelmar::test
