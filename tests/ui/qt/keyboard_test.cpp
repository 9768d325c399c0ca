#include "tests/ui/qt/page_fixture.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/disclosure.hpp"
#include "ui/qt/log_view.hpp"
#include "ui/qt/push_button.hpp"
#include "ui/qt/toggle_switch.hpp"

#include <QToolTip>

namespace kelmar {
namespace {

using test::recorded;
using test::RecordedActions;

class Keyboard : public test::PageInAWindow {
protected:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget() != nullptr ? QApplication::focusWidget()
                                                               : &window,
                        key, modifiers);
        settle();
    }

    using Texts = std::vector<std::string>;

    /// The buttons that are drawn as the one that Return presses.
    [[nodiscard]] Texts highlighted() const {
        Texts texts;
        for (PushButton* const button : test::widgets<PushButton>(window)) {
            const QColor face = button->grab().toImage().pixelColor(8, button->height() / 2);
            if (button->isVisible() && face.rgb() == Colours(button->palette()).accent.rgb()) {
                texts.push_back(button->text().toStdString());
            }
        }
        return texts;
    }

    static std::string focused() {
        QWidget* const widget = QApplication::focusWidget();
        if (const auto* const button = qobject_cast<QAbstractButton*>(widget)) {
            return button->text().isEmpty() ? "switch" : button->text().toStdString();
        }
        if (const auto* const label = qobject_cast<QLabel*>(widget)) {
            return label->text().toStdString();
        }
        return widget == nullptr ? "nothing" : "something else";
    }
};

TEST_F(Keyboard, ReturnPressesTheDefaultButtonAndEscapeTheWayOut) {
    render(test::readyPage());
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    press(Qt::Key_Escape);
    EXPECT_EQ(recordedActions,
              (RecordedActions{recorded(Action::uninstallClicked),
                               recorded(Action::uninstallClicked), recorded(Action::quit)}));
}

TEST_F(Keyboard, ReturnPressesThePushButtonThatHasTheFocus) {
    render(test::readyPage());
    for (const auto& [text, action] : {std::pair{"Quit", Action::quit},
                                       {"Uninstall", Action::uninstallClicked},
                                       {"Hide folders", Action::toggleFolders}}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            recordedActions.clear();
            seen<PushButton>(text)->setFocus();
            press(key);
            EXPECT_EQ(recordedActions, RecordedActions{recorded(action)}) << text;
        }
    }
}

TEST_F(Keyboard, ReturnOnWhatIsNoPushButtonPressesTheDefaultButton) {
    render(test::readyPage());
    firstSeen<CheckBox>()->setFocus();
    press(Qt::Key_Return);
    firstSeen<ToggleSwitch>()->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(recordedActions, (RecordedActions{recorded(Action::uninstallClicked),
                                                recorded(Action::uninstallClicked)}));
    recordedActions.clear();
    render(test::finishedPage());
    firstSeen<Disclosure>()->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::quit)});
}

TEST_F(Keyboard, TheHighlightIsOnTheButtonThatReturnPresses) {
    render(test::readyPage());
    EXPECT_EQ(highlighted(), Texts{"Uninstall"});
    seen<PushButton>("Quit")->setFocus();
    settle();
    EXPECT_EQ(highlighted(), Texts{"Quit"});
    seen<PushButton>("Hide folders")->setFocus();
    settle();
    EXPECT_EQ(highlighted(), Texts{"Hide folders"});
    firstSeen<CheckBox>()->setFocus();
    settle();
    EXPECT_EQ(highlighted(), Texts{"Uninstall"});
    render(test::finishedPage());
    EXPECT_EQ(highlighted(), Texts{"Quit"});
    firstSeen<Disclosure>()->setFocus();
    settle();
    EXPECT_EQ(highlighted(), Texts{"Quit"});
}

TEST_F(Keyboard, AButtonThatComesToStandForAnotherKeepsNoFocus) {
    render(test::finishedPage());
    auto* const button = seen<PushButton>("Try Again");
    button->setFocus();
    render(test::readyPage());
    ASSERT_EQ(button->text(), "Quit");
    EXPECT_EQ(highlighted(), Texts{"Uninstall"});
    press(Qt::Key_Return);
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::uninstallClicked)});
}

TEST_F(Keyboard, WhatHadTheFocusAndIsGoneLeavesItToNoButton) {
    render(test::readyPage());
    seen<PushButton>("Uninstall")->setFocus();
    render(test::confirmingPage());
    seen<PushButton>("Uninstall and Delete Data")->setFocus();
    render(test::workingPage());
    render(test::finishedPage());
    EXPECT_EQ(highlighted(), Texts{"Quit"});
    press(Qt::Key_Return);
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::quit)});
}

TEST_F(Keyboard, OverTheQuestionReturnAndTheHighlightStayWithTheWayOut) {
    render(test::confirmingPage());
    EXPECT_EQ(highlighted(), Texts{"Cancel"});
    press(Qt::Key_Tab);
    ASSERT_EQ(focused(), "Uninstall and Delete Data");
    EXPECT_EQ(highlighted(), Texts{"Cancel"});
    press(Qt::Key_Return);
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::dismissConfirmation)});
}

TEST_F(Keyboard, ReturnInTheRecordOfARunPressesTheDefaultButton) {
    render(test::finishedPage(LogLines({"one"}), true));
    firstSeen<LogView>()->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::quit)});
}

TEST_F(Keyboard, EscapeDoesNothingWhereNothingIsCancelled) {
    render(test::finishedPage());
    press(Qt::Key_Escape);
    EXPECT_EQ(recordedActions, RecordedActions{});
}

TEST_F(Keyboard, NoKeyPressesADisabledButton) {
    render(test::workingPage());
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    press(Qt::Key_Space);
    EXPECT_EQ(recordedActions, RecordedActions{});
}

TEST_F(Keyboard, AKeyHeldDownPressesOnce) {
    render(test::readyPage());
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true, 1);
    QTest::keyPress(&window, Qt::Key_Return);
    QApplication::sendEvent(&window, &again);
    QApplication::sendEvent(&window, &again);
    EXPECT_EQ(recordedActions.size(), 1U);
}

TEST_F(Keyboard, OverTheQuestionReturnAndEscapeBothLeadOut) {
    render(test::confirmingPage());
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    EXPECT_EQ(recordedActions, (RecordedActions{recorded(Action::dismissConfirmation),
                                                recorded(Action::dismissConfirmation)}));
}

TEST_F(Keyboard, TheFocusComesToTheWayOutOfTheQuestionAndGoesBack) {
    render(test::readyPage());
    firstSeen<ToggleSwitch>()->setFocus();
    render(test::confirmingPage());
    EXPECT_EQ(focused(), "Cancel");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Uninstall and Delete Data");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Cancel") << "the page below the question is out of reach";
    render(test::readyPage());
    EXPECT_EQ(focused(), "switch");
}

TEST_F(Keyboard, SpaceGoesOnOverTheQuestionOnlyOnTheButtonItself) {
    render(test::confirmingPage());
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::uninstall)});
}

TEST_F(Keyboard, TabGoesThroughThePageFromTopToBottom) {
    render(test::readyPage());
    std::vector<std::string> order;
    for (int times = 0; times < 8; ++times) {
        press(Qt::Key_Tab);
        order.push_back(focused());
    }
    EXPECT_EQ(order, (std::vector<std::string>{"switch", "Hide folders", "Store", "Logs", "Quit",
                                               "Uninstall", "Asks for an administrator's password",
                                               "switch"}));
}

TEST_F(Keyboard, TheHelpOfANoteIsShownWhileItHasTheFocus) {
    render(test::readyPage());
    firstSeen<ToggleSwitch>()->setFocus();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(focused(), "Asks for an administrator's password");
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::text(), "<qt>Why.</qt>");
    press(Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(Keyboard, ControlsThatComeLaterTakeTheirPlaceInTheOrder) {
    Page folded = test::readyPage();
    std::get<ReadyContent>(folded.content).data->lists.clear();
    render(folded);
    render(test::readyPage());
    firstSeen<ToggleSwitch>()->setFocus();
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Store");
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Quit");
}

TEST_F(Keyboard, SpaceTogglesWhatHasTheFocus) {
    render(test::readyPage());
    firstSeen<ToggleSwitch>()->setFocus();
    press(Qt::Key_Space);
    seen<CheckBox>("Logs")->setFocus();
    press(Qt::Key_Space);
    seen<PushButton>("Hide folders")->setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(recordedActions, (RecordedActions{"delete none", "select /h/Kelmar/Logs",
                                                recorded(Action::toggleFolders)}));
}

TEST_F(Keyboard, SpaceUnfoldsTheDetails) {
    render(test::workingPage());
    firstSeen<Disclosure>()->setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::toggleDetails)});
}

TEST_F(Keyboard, TheFocusIsNotLostWhenThePageUnderItChanges) {
    render(test::readyPage());
    seen<PushButton>("Uninstall")->setFocus();
    render(test::workingPage());
    render(test::finishedPage());
    press(Qt::Key_Tab);
    EXPECT_NE(focused(), "nothing");
    EXPECT_NE(focused(), "something else");
}

} // namespace
} // namespace kelmar
