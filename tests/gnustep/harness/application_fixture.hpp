#pragma once

#include "tests/gnustep/harness/run_loop.hpp"
#include "tests/gnustep/harness/views.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"
#include "ui/appkit/app_delegate.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>

namespace kelmar::test {

/// Stands for a step that takes as long as a test wants.
struct Gate {
    void wait() const;

    std::atomic<bool> open{false};
};

/// The application with its real delegate in this process, below a test root of its own.
class Application : public testing::Test {
protected:
    ~Application() override;

    void TearDown() override;

    /// Makes the delegate and lets it know that the application has launched.
    void launch(const UninstallerModel::Sources& sources = {});

    [[nodiscard]] NSWindow* window() const { return [delegate window]; }

    [[nodiscard]] NSView* content() const { return [window() contentView]; }

    [[nodiscard]] bool shows(const std::string& text) const;
    /// What is shown instead is told when it doesn't come.
    [[nodiscard]] testing::AssertionResult waitFor(const std::string& text) const;

    /// The button of the page with that text, pressed as by a person's hand.
    void click(const std::string& text) const;

    /// The question that is asked now; nil without one.
    [[nodiscard]] KelmarAlert* question() const { return [KelmarAlert alertOfWindow:window()]; }

    [[nodiscard]] NSButton* answer(const std::string& text) const;

    /// Clicks the question's button with that text, and waits for the question to go.
    void answerWith(const std::string& text) const;

    /// Folders are measured once the gate is open.
    [[nodiscard]] UninstallerModel::Sources slowSizes() const;

    /// The administrator step waits for the gate, so that a run goes on for as long as a test
    /// wants.
    [[nodiscard]] UninstallerModel::Sources slowRun() const;

    TemporaryFolder folder;
    /// Shared with threads that nobody waits for.
    std::shared_ptr<Gate> gate = std::make_shared<Gate>();
    AppDelegate* delegate = nil;

private:
    NSAutoreleasePool* pool_ = [NSAutoreleasePool new];
};

} // namespace kelmar::test
