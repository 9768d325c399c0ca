#include "tests/gnustep/harness/input.hpp"
#include "tests/gnustep/harness/page_fixture.hpp"
#include "tests/gnustep/harness/sample_pages.hpp"

namespace kelmar {
namespace {

using test::recorded;
using test::RecordedActions;

class Controls : public test::PageInAWindow {
protected:
    [[nodiscard]] NSSwitch* toggle() const { return test::firstSeen<NSSwitch>(page); }

    /// Beside its text.
    [[nodiscard]] NSButton* triangle() const {
        NSButton* const text = seen<NSButton>("Details");
        NSButton* found = nil;
        for (NSButton* const each : test::allSeen<NSButton>(page)) {
            found = each != text && [each superview] == [text superview] ? each : found;
        }
        return found;
    }
};

TEST_F(Controls, AClickAsksForWhatTheButtonDoes) {
    render(test::readyPage());
    test::click(seen<NSButton>("Quit"));
    test::click(seen<NSButton>("Uninstall"));
    test::click(seen<NSButton>("Choose folders"));
    EXPECT_EQ(recordedActions,
              (RecordedActions{recorded(Action::quit), recorded(Action::uninstallClicked),
                               recorded(Action::toggleFolders)}));
}

/// Every way in which a person, or what reads the screen to one, changes a control.
class Ways : public Controls,
             public testing::WithParamInterface<std::pair<const char*, void (*)(NSView*)>> {
protected:
    static void change(NSView* control) {
        GetParam().second(control);
        test::settle();
    }
};

void pressKey(NSView* control) {
    ASSERT_TRUE([[control window] makeFirstResponder:control]);
    test::press("space");
}

void performPress(NSView* control) {
    [test::exposed(control) accessibilityPerformPress];
}

INSTANTIATE_TEST_SUITE_P(Every, Ways,
                         testing::Values(std::pair("Click", &test::click),
                                         std::pair("Key", &pressKey),
                                         std::pair("Accessibility", &performPress)),
                         [](const auto& each) { return each.param.first; });

TEST_P(Ways, TheSwitchAsksForAllOrNothing) {
    Page shown = test::readyPage();
    render(shown);
    change(toggle());
    EXPECT_EQ(recordedActions, RecordedActions{"delete none"});
    std::get<ReadyContent>(shown.content).data->on = false;
    render(shown);
    change(toggle());
    EXPECT_EQ(recordedActions, (RecordedActions{"delete none", "delete all"}));
}

TEST_P(Ways, ACheckBoxAsksForItsFolder) {
    Page shown = test::foldersPage();
    render(shown);
    change(seen<NSButton>("Store"));
    EXPECT_EQ(recordedActions, RecordedActions{"leave /Users/ada/Kelmar/Store"});
    std::get<ReadyContent>(shown.content).data->lists.at(0).rows.at(0).checked = false;
    render(shown);
    change(seen<NSButton>("Store"));
    EXPECT_EQ(recordedActions,
              (RecordedActions{"leave /Users/ada/Kelmar/Store", "select /Users/ada/Kelmar/Store"}));
}

TEST_P(Ways, TheTriangleAsksForTheDetails) {
    render(test::workingPage());
    change(triangle());
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::toggleDetails)});
}

/// The model may refuse: what is shown is what will be done.
TEST_P(Ways, WhatThePageDoesNotTakeUpIsNotShown) {
    render(test::foldersPage());
    change(seen<NSButton>("Store"));
    EXPECT_EQ([seen<NSButton>("Store") state], NSControlStateValueOn);
    change(toggle());
    EXPECT_EQ([toggle() state], NSControlStateValueOn);
    EXPECT_EQ(recordedActions, (RecordedActions{"leave /Users/ada/Kelmar/Store", "delete none"}));
    render(test::workingPage());
    change(triangle());
    EXPECT_EQ([triangle() state], NSControlStateValueOff);
}

TEST_F(Controls, APathThatIsNotUtf8IsHandedBackAsItWas) {
    Page shown = test::foldersPage();
    std::get<ReadyContent>(shown.content).data->lists.at(0).rows.at(0).path = "/h/\xff\xfe";
    render(shown);
    test::click(seen<NSButton>("Store"));
    EXPECT_EQ(recordedActions, RecordedActions{"leave /h/\xff\xfe"});
}

TEST_F(Controls, APageThatIsShownAsksForNothing) {
    Page shown = test::foldersPage();
    render(shown);
    auto& data = *std::get<ReadyContent>(shown.content).data;
    data.on = false;
    data.lists.at(0).rows.at(0).checked = false;
    render(shown);
    EXPECT_EQ([toggle() state], NSControlStateValueOff);
    EXPECT_EQ([seen<NSButton>("Store") state], NSControlStateValueOff);
    EXPECT_EQ(recordedActions, RecordedActions{});
}

TEST_F(Controls, ADisabledButtonCannotBePressed) {
    render(test::workingPage());
    test::click(seen<NSButton>("Quit"));
    [seen<NSButton>("Quit") performClick:nil];
    EXPECT_EQ(recordedActions, RecordedActions{});
}

TEST_F(Controls, TheTriangleAndItsTextUnfoldTheDetails) {
    render(test::workingPage());
    test::click(seen<NSButton>("Details"));
    ASSERT_NE(triangle(), nil);
    EXPECT_EQ([triangle() state], NSControlStateValueOff);
    test::click(triangle());
    EXPECT_EQ(recordedActions,
              (RecordedActions{recorded(Action::toggleDetails), recorded(Action::toggleDetails)}));
    render(test::workingPage({}, true));
    EXPECT_EQ([triangle() state], NSControlStateValueOn);
}

} // namespace
} // namespace kelmar
