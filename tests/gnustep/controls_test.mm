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

TEST_F(Controls, TheSwitchAsksForAllOrNothing) {
    render(test::readyPage());
    test::click(toggle());
    EXPECT_EQ(recordedActions, RecordedActions{"delete none"});
    test::click(toggle());
    EXPECT_EQ(recordedActions, (RecordedActions{"delete none", "delete all"}));
}

TEST_F(Controls, ACheckBoxAsksForItsFolder) {
    render(test::foldersPage());
    test::click(seen<NSButton>("Store"));
    test::click(seen<NSButton>("Store"));
    EXPECT_EQ(recordedActions,
              (RecordedActions{"leave /Users/ada/Kelmar/Store", "select /Users/ada/Kelmar/Store"}));
}

TEST_F(Controls, APathThatIsNotUtf8IsHandedBackAsItWas) {
    Page shown = test::foldersPage();
    std::get<ReadyContent>(shown.content).data->lists.at(0).rows.at(0).path = "/h/\xff\xfe";
    render(shown);
    test::click(seen<NSButton>("Store"));
    EXPECT_EQ(recordedActions, RecordedActions{"leave /h/\xff\xfe"});
}

TEST_F(Controls, APressThatThePageDoesNotTakeUpIsTakenBackByTheNextPage) {
    Page shown = test::foldersPage();
    render(shown);
    test::click(seen<NSButton>("Store"));
    EXPECT_EQ([seen<NSButton>("Store") state], NSControlStateValueOff);
    test::click(toggle());
    EXPECT_EQ([toggle() state], NSControlStateValueOff);
    std::get<ReadyContent>(shown.content).data->line = "another";
    render(shown);
    EXPECT_EQ([seen<NSButton>("Store") state], NSControlStateValueOn);
    EXPECT_EQ([toggle() state], NSControlStateValueOn);
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
    NSButton* const text = seen<NSButton>("Details");
    test::click(text);
    NSButton* triangle = nil;
    for (NSButton* const each : test::allSeen<NSButton>(page)) {
        triangle = each != text && [each superview] == [text superview] ? each : triangle;
    }
    ASSERT_NE(triangle, nil);
    EXPECT_EQ([triangle state], NSControlStateValueOff);
    test::click(triangle);
    EXPECT_EQ(recordedActions,
              (RecordedActions{recorded(Action::toggleDetails), recorded(Action::toggleDetails)}));
    render(test::workingPage({}, true));
    EXPECT_EQ([triangle state], NSControlStateValueOn);
}

} // namespace
} // namespace kelmar
