#include "tests/ui/qt/page_fixture.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/disclosure.hpp"
#include "ui/qt/push_button.hpp"
#include "ui/qt/toggle_switch.hpp"

#include <QPlainTextEdit>

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

    static std::string focused() {
        QWidget* const widget = QApplication::focusWidget();
        if (const auto* const button = qobject_cast<QAbstractButton*>(widget)) {
            return button->text().isEmpty() ? "switch" : button->text().toStdString();
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

TEST_F(Keyboard, ReturnPressesTheDefaultButtonWhereverTheFocusIs) {
    render(test::readyPage());
    for (PushButton* const button : test::widgets<PushButton>(window)) {
        recordedActions.clear();
        button->setFocus();
        press(Qt::Key_Return);
        EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::uninstallClicked)})
            << button->text().toStdString();
    }
    recordedActions.clear();
    firstSeen<CheckBox>()->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::uninstallClicked)});
}

TEST_F(Keyboard, ReturnInTheRecordOfARunPressesTheDefaultButton) {
    render(test::finishedPage(LogLines({"one"}), true));
    window.findChild<QPlainTextEdit*>()->setFocus();
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
    for (int times = 0; times < 7; ++times) {
        press(Qt::Key_Tab);
        order.push_back(focused());
    }
    EXPECT_EQ(order, (std::vector<std::string>{"switch", "Hide folders", "Store", "Logs", "Quit",
                                               "Uninstall", "switch"}));
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
