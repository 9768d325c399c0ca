#include "tests/ui/qt/page_fixture.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/push_button.hpp"
#include "ui/qt/toggle_switch.hpp"

namespace kelmar {
namespace {

using test::recorded;
using test::RecordedActions;

class Controls : public test::PageInAWindow {
protected:
    void SetUp() override { render(test::readyPage()); }

    static void click(QWidget* widget) {
        ASSERT_NE(widget, nullptr);
        QTest::mouseClick(widget, Qt::LeftButton);
    }
};

TEST_F(Controls, AClickAsksForWhatTheButtonDoes) {
    click(seen<PushButton>("Quit"));
    click(seen<PushButton>("Uninstall"));
    click(seen<PushButton>("Hide folders"));
    EXPECT_EQ(recordedActions,
              (RecordedActions{recorded(Action::quit), recorded(Action::uninstallClicked),
                               recorded(Action::toggleFolders)}));
}

TEST_F(Controls, TheSwitchAndItsLabelAskForAllOrNothing) {
    click(firstSeen<ToggleSwitch>());
    EXPECT_EQ(recordedActions, RecordedActions{"delete none"});
    Page off = test::readyPage();
    std::get<ReadyContent>(off.content).data->on = false;
    render(off);
    click(seen<TextLabel>("Delete Kelmar data"));
    EXPECT_EQ(recordedActions, (RecordedActions{"delete none", "delete all"}));
}

TEST_F(Controls, AllOfACheckBoxIsPressedBesideItsTextToo) {
    QTest::mouseClick(seen<CheckBox>("Store"), Qt::LeftButton, {}, QPoint(6, 8));
    QTest::mouseClick(seen<CheckBox>("Logs"), Qt::LeftButton, {}, QPoint(40, 8));
    EXPECT_EQ(recordedActions, (RecordedActions{"leave /h/Kelmar/Store", "select /h/Kelmar/Logs"}));
}

TEST_F(Controls, APathThatIsNotUtf8IsHandedBackAsItWas) {
    Page page = test::readyPage();
    std::get<ReadyContent>(page.content).data->lists.at(0).rows.at(0).path = "/h/\xff\xfe";
    render(page);
    click(seen<CheckBox>("Store"));
    EXPECT_EQ(recordedActions, RecordedActions{"leave /h/\xff\xfe"});
}

TEST_F(Controls, APressThatThePageDoesNotTakeUpIsNeverSeen) {
    click(seen<CheckBox>("Logs"));
    EXPECT_FALSE(seen<CheckBox>("Logs")->isChecked());
    settle();
    EXPECT_FALSE(seen<CheckBox>("Logs")->isChecked());
}

TEST_F(Controls, WhatIsSwitchedIsWhatThePageSays) {
    EXPECT_TRUE(firstSeen<ToggleSwitch>()->isChecked());
    EXPECT_TRUE(seen<CheckBox>("Store")->isChecked());
    EXPECT_FALSE(seen<CheckBox>("Logs")->isChecked());
    recordedActions.clear();
    Page page = test::readyPage();
    std::get<ReadyContent>(page.content).data->on = false;
    std::get<ReadyContent>(page.content).data->lists.at(0).rows.at(1).checked = true;
    render(page);
    EXPECT_FALSE(firstSeen<ToggleSwitch>()->isChecked());
    EXPECT_TRUE(seen<CheckBox>("Logs")->isChecked());
    EXPECT_EQ(recordedActions, RecordedActions{}) << "a page that is shown asks for nothing";
}

TEST_F(Controls, UnderTheQuestionThePageCannotBePressed) {
    render(test::confirmingPage());
    click(seen<PushButton>("Uninstall"));
    click(firstSeen<ToggleSwitch>());
    EXPECT_EQ(recordedActions, RecordedActions{});
    click(seen<PushButton>("Uninstall and Delete Data"));
    click(seen<PushButton>("Cancel"));
    EXPECT_EQ(recordedActions, (RecordedActions{recorded(Action::uninstall),
                                                recorded(Action::dismissConfirmation)}));
}

TEST_F(Controls, TheWayOutStandsBeforeTheButtonThatGoesOn) {
    render(test::confirmingPage());
    const QPoint cancel = seen<PushButton>("Cancel")->mapTo(&window, QPoint());
    const QPoint goOn = seen<PushButton>("Uninstall and Delete Data")->mapTo(&window, QPoint());
    EXPECT_LT(cancel.x(), goOn.x());
    EXPECT_EQ(cancel.y(), goOn.y());
}

TEST_F(Controls, ButtonsOfTheFooterStandInThePagesOrderAtTheTrailingSide) {
    const QPoint quit = seen<PushButton>("Quit")->mapTo(&window, QPoint());
    const PushButton* const uninstall = seen<PushButton>("Uninstall");
    EXPECT_LT(quit.x(), uninstall->mapTo(&window, QPoint()).x());
    EXPECT_GT(uninstall->mapTo(&window, uninstall->rect().bottomRight()).x(), window.width() - 30);
}

TEST_F(Controls, HelpIsShownAsText) {
    Page page = test::readyPage();
    page.footer.notes.at(0).help = "<b>Why</b> & how";
    render(page);
    const QWidget* const note =
        seen<TextLabel>("Asks for an administrator's password")->parentWidget();
    EXPECT_EQ(note->toolTip(), "<b>Why</b> & how");
}

} // namespace
} // namespace kelmar
