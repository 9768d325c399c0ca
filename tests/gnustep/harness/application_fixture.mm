#include "tests/gnustep/harness/application_fixture.hpp"

#include "admin/administrator_runner.hpp"
#include "discovery/scanner.hpp"
#include "system/text/foundation_text_macos.hpp"
#include "tests/gnustep/harness/input.hpp"
#include "tests/gnustep/harness/page_texts.hpp"

#include <chrono>
#include <thread>

namespace kelmar::test {

namespace {

/// The runner of the program's own, after the gate.
class WaitingRunner : public AdministratorRunner {
public:
    WaitingRunner(std::shared_ptr<AdministratorRunner> runner, std::shared_ptr<Gate> gate)
        : runner_(std::move(runner)),
          gate_(std::move(gate)) {}

    void run(const std::string& script, const std::vector<std::string>& arguments,
             const std::string& reason) override {
        gate_->wait();
        runner_->run(script, arguments, reason);
    }

private:
    std::shared_ptr<AdministratorRunner> runner_;
    std::shared_ptr<Gate> gate_;
};

} // namespace

void Gate::wait() const {
    while (!open) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

Application::~Application() {
    [pool_ drain];
}

void Application::launch(const UninstallerModel::Sources& sources) {
    delegate = [[AppDelegate alloc] initWithPaths:pathsUnder(folder.path()) sources:sources];
    [NSApp setDelegate:delegate];
    [delegate applicationDidFinishLaunching:nil];
}

void Application::TearDown() {
    gate->open = true;
    if (delegate == nil) {
        return;
    }
    // A run that still goes on holds the model: let it end.
    EXPECT_TRUE(eventually([this] { return ![delegate model].isWorking(); }));
    [[question() window] orderOut:nil];
    [window() close];
    settle();
    [NSApp setDelegate:nil];
    [delegate release];
}

bool Application::shows(const std::string& text) const {
    return seen<NSView>(content(), text) != nil;
}

testing::AssertionResult Application::waitFor(const std::string& text) const {
    return eventually([this, &text] { return shows(text); })
               ? testing::AssertionSuccess()
               : testing::AssertionFailure()
                     << testing::PrintToString(textsIn(content())) << "; the model says "
                     << testing::PrintToString(textsAbove([delegate view].page()));
}

void Application::click(const std::string& text) const {
    NSButton* const button = seen<NSButton>(content(), text);
    ASSERT_NE(button, nil) << text;
    test::click(button);
}

NSButton* Application::answer(const std::string& text) const {
    for (NSButton* button in [question() buttons]) {
        if (plainText([button title]) == text) {
            return button;
        }
    }
    return nil;
}

void Application::answerWith(const std::string& text) const {
    test::click(answer(text));
    ASSERT_TRUE(eventually([this] { return question() == nil; })) << text << " was not taken";
}

UninstallerModel::Sources Application::slowSizes() const {
    UninstallerModel::Sources sources;
    sources.size = [gate = gate](const std::string& path) {
        gate->wait();
        return Scanner::size(path);
    };
    return sources;
}

UninstallerModel::Sources Application::slowRun() const {
    UninstallerModel::Sources sources;
    sources.administrator = [gate = gate](const KelmarPaths& paths) {
        return std::make_shared<WaitingRunner>(Uninstaller::usualRunner(paths), gate);
    };
    return sources;
}

} // namespace kelmar::test
