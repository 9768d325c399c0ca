#include "system/text/foundation_text_macos.hpp"
#include "tests/gnustep/harness/input.hpp"
#include "tests/gnustep/harness/page_fixture.hpp"
#include "tests/gnustep/harness/run_loop.hpp"
#include "tests/gnustep/harness/sample_pages.hpp"
#include "ui/appkit/confirmation.h"

/// What the toolkit calls.
@interface KelmarConfirmationSheet (Delegate)
- (void)alertDidEnd:(NSAlert*)alert returnCode:(NSInteger)code contextInfo:(void*)context;
@end

namespace kelmar {
namespace {

using test::recorded;
using test::RecordedActions;

/// The question over a window. The parameter: whether a sheet that is taken away tells so in a
/// later turn, since the reference leaves it open.
class Sheet : public test::PageInAWindow, public testing::WithParamInterface<bool> {
protected:
    Sheet() { [KelmarAlert setAnswersLater:GetParam() ? YES : NO]; }

    ~Sheet() override {
        [[question() window] orderOut:nil];
        [sheet release];
    }

    /// Shows the question and waits for it.
    void ask() {
        [sheet render:confirmation];
        ASSERT_TRUE(test::eventually([this] { return question() != nil; }));
        test::settle();
    }

    [[nodiscard]] KelmarAlert* question() const { return [KelmarAlert alertOfWindow:window]; }

    [[nodiscard]] NSButton* button(NSUInteger index) const {
        return [[question() buttons] objectAtIndex:index];
    }

    const std::optional<Confirmation> confirmation = test::confirmingPage().confirmation;
    KelmarConfirmationSheet* sheet = [[KelmarConfirmationSheet alloc] initWithActions:&actions
                                                                               window:window];
};

INSTANTIATE_TEST_SUITE_P(AtOnceOrLater, Sheet, testing::Bool());

TEST_P(Sheet, SaysWhatThePageSays) {
    ask();
    EXPECT_EQ(plainText([question() messageText]), confirmation->title);
    EXPECT_EQ(plainText([question() informativeText]), confirmation->message);
    EXPECT_EQ([question() alertStyle], NSAlertStyleWarning);
    ASSERT_EQ([[question() buttons] count], 2U);
    EXPECT_EQ(plainText([button(0) title]), "Uninstall and Delete Data");
    EXPECT_EQ(plainText([button(1) title]), "Cancel");
    EXPECT_TRUE([button(0) hasDestructiveAction]);
    EXPECT_FALSE([button(1) hasDestructiveAction]);
}

TEST_P(Sheet, GivesReturnToTheWayOut) {
    ask();
    EXPECT_EQ(plainText([button(0) keyEquivalent]), "");
    EXPECT_EQ(plainText([button(1) keyEquivalent]), "\r");
    EXPECT_EQ([[question() window] defaultButtonCell], [button(1) cell]);
}

TEST_P(Sheet, IsNotBegunInsideTheCallThatAsksForIt) {
    [sheet render:confirmation];
    EXPECT_EQ(question(), nil) << "it may run an event loop of its own";
    EXPECT_TRUE(test::eventually([this] { return question() != nil; }));
}

TEST_P(Sheet, AnswersWithTheActionOfItsButton) {
    ask();
    test::click(button(0));
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::uninstall)});
    EXPECT_EQ(question(), nil);
    EXPECT_EQ([sheet alert], nil);
    ask();
    test::click(button(1));
    EXPECT_EQ(recordedActions, (RecordedActions{recorded(Action::uninstall),
                                                recorded(Action::dismissConfirmation)}));
}

TEST_P(Sheet, IsCancelledByReturnAndByEscape) {
    for (const char* const key : {"Return", "Escape"}) {
        recordedActions.clear();
        ask();
        test::press(key);
        EXPECT_TRUE(test::eventually([this] { return !recordedActions.empty(); })) << key;
        test::settle();
        EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::dismissConfirmation)}) << key;
        EXPECT_EQ(question(), nil) << key;
    }
}

TEST_P(Sheet, DoesNothingForOtherKeys) {
    ask();
    for (const char* const key : {"a", "Delete", "u"}) {
        test::press(key);
    }
    EXPECT_EQ(recordedActions, RecordedActions{});
    EXPECT_NE(question(), nil);
}

TEST_P(Sheet, TakesNoCodeButAButtonsForAnAnswer) {
    for (const NSInteger code :
         {NSInteger(NSModalResponseAbort), NSInteger(NSModalResponseStop), NSInteger(0),
          NSInteger(1), NSInteger(999), NSInteger(1002), NSInteger(-1)}) {
        recordedActions.clear();
        ask();
        [window endSheet:[question() window] returnCode:code];
        test::settle();
        EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::dismissConfirmation)}) << code;
        EXPECT_EQ(question(), nil);
    }
}

TEST_P(Sheet, GoesWhenThePageAsksNoMore) {
    ask();
    [sheet render:std::nullopt];
    test::settle();
    EXPECT_EQ(question(), nil);
    EXPECT_EQ([sheet alert], nil);
    EXPECT_EQ(
        std::count(recordedActions.begin(), recordedActions.end(), recorded(Action::uninstall)), 0);
    [sheet render:std::nullopt];
    EXPECT_TRUE([window isVisible]);
}

TEST_P(Sheet, ThatIsTakenBackBeforeItHasBegunIsNeverSeen) {
    [sheet render:confirmation];
    [sheet render:std::nullopt];
    test::settle();
    EXPECT_EQ(question(), nil);
    EXPECT_EQ(recordedActions, RecordedActions{});
    ask();
    EXPECT_NE(question(), nil);
}

TEST_P(Sheet, ChangesItsTextsInPlace) {
    ask();
    KelmarAlert* const before = question();
    Confirmation other = *confirmation;
    other.title = "Delete 1 GB of Kelmar data?";
    other.message = "a \xff name";
    [sheet render:other];
    test::settle();
    EXPECT_EQ(question(), before);
    EXPECT_EQ(plainText([question() messageText]), other.title);
    EXPECT_EQ(plainText([question() informativeText]), "a \uFFFD name");
    EXPECT_EQ(recordedActions, RecordedActions{});
}

TEST_P(Sheet, AnswersOnce) {
    ask();
    KelmarAlert* const alert = [[question() retain] autorelease];
    [button(1) performClick:nil];
    [window endSheet:[alert window] returnCode:NSAlertFirstButtonReturn];
    [sheet render:std::nullopt];
    test::settle();
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::dismissConfirmation)});
}

TEST_P(Sheet, TakesNoAnswerToAnEarlierQuestion) {
    ask();
    KelmarAlert* const earlier = [[question() retain] autorelease];
    test::click(button(1));
    ask();
    recordedActions.clear();
    [sheet alertDidEnd:earlier returnCode:NSAlertFirstButtonReturn contextInfo:nullptr];
    EXPECT_EQ(recordedActions, RecordedActions{});
    EXPECT_NE(question(), nil);
}

TEST_P(Sheet, KeepsClicksAndKeysFromThePageUnderIt) {
    render(test::confirmingPage());
    ask();
    test::click(seen<NSButton>("Uninstall"));
    test::click(test::firstSeen<NSSwitch>(page));
    EXPECT_EQ(recordedActions, RecordedActions{});
}

TEST_P(Sheet, DoesNotKeepTheApplicationFromEnding) {
    ask();
    EXPECT_FALSE([[question() window] preventsApplicationTerminationWhenModal]);
}

} // namespace
} // namespace kelmar
