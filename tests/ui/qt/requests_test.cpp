#include "tests/ui/qt/page_fixture.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/disclosure.hpp"
#include "ui/qt/push_button.hpp"
#include "ui/qt/toggle_switch.hpp"

#include <QAccessible>
#include <functional>
#include <ostream>

namespace kelmar {
namespace {

using test::recorded;
using test::RecordedActions;

/// A way in which a person uses a control.
struct Way {
    std::string name;
    std::function<void(QWidget& control)> use;

    friend std::ostream& operator<<(std::ostream& out, const Way& way) { return out << way.name; }
};

void click(QWidget& control) {
    QTest::mouseClick(&control, Qt::LeftButton);
}

void pressSpace(QWidget& control) {
    control.setFocus();
    QTest::keyClick(&control, Qt::Key_Space);
}

/// Whatever a screen reader can do to it, except for moving the focus.
void act(QWidget& control) {
    QAccessibleActionInterface* const actions =
        QAccessible::queryAccessibleInterface(&control)->actionInterface();
    ASSERT_NE(actions, nullptr);
    QStringList names = actions->actionNames();
    names.removeAll(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(names.size(), 1);
    for (const QString& name : names) {
        actions->doAction(name);
    }
}

const Way ways[] = {
    {"AClick", click},
    {"TheSpaceBar", pressSpace},
    {"AScreenReader", act},
};

/// A control changes what it draws only when the page does, however a person uses it.
class Requests : public test::PageInAWindow, public testing::WithParamInterface<Way> {
protected:
    static void use(QWidget* control) {
        ASSERT_NE(control, nullptr);
        GetParam().use(*control);
        settle();
    }
};

TEST_P(Requests, OfACheckBoxAskAndDrawNothing) {
    render(test::readyPage());
    use(seen<CheckBox>("Store"));
    use(seen<CheckBox>("Logs"));
    EXPECT_EQ(recordedActions, (RecordedActions{"leave /h/Kelmar/Store", "select /h/Kelmar/Logs"}));
    EXPECT_TRUE(seen<CheckBox>("Store")->isChecked());
    EXPECT_FALSE(seen<CheckBox>("Logs")->isChecked());
}

TEST_P(Requests, OfTheSwitchAskAndDrawNothing) {
    render(test::readyPage());
    use(firstSeen<ToggleSwitch>());
    EXPECT_EQ(recordedActions, RecordedActions{"delete none"});
    EXPECT_TRUE(firstSeen<ToggleSwitch>()->isChecked());
    Page off = test::readyPage();
    std::get<ReadyContent>(off.content).data->on = false;
    render(off);
    EXPECT_FALSE(firstSeen<ToggleSwitch>()->isChecked());
    use(firstSeen<ToggleSwitch>());
    EXPECT_EQ(recordedActions, (RecordedActions{"delete none", "delete all"}));
    EXPECT_FALSE(firstSeen<ToggleSwitch>()->isChecked());
}

TEST_P(Requests, OfADisclosureAskAndUnfoldNothing) {
    render(test::finishedPage());
    use(firstSeen<Disclosure>());
    EXPECT_EQ(recordedActions, RecordedActions{recorded(Action::toggleDetails)});
    EXPECT_FALSE(firstSeen<Disclosure>()->isUnfolded());
}

TEST_P(Requests, OfAButtonAskOnce) {
    render(test::readyPage());
    for (const auto& [text, action] : {std::pair{"Quit", Action::quit},
                                       {"Uninstall", Action::uninstallClicked},
                                       {"Hide folders", Action::toggleFolders}}) {
        recordedActions.clear();
        use(seen<PushButton>(text));
        EXPECT_EQ(recordedActions, RecordedActions{recorded(action)}) << text;
    }
}

INSTANTIATE_TEST_SUITE_P(Ways, Requests, testing::ValuesIn(ways),
                         [](const auto& each) { return each.param.name; });

using RequestsOfOneWay = test::PageInAWindow;

TEST_F(RequestsOfOneWay, TheLabelOfASwitchAsksAndDrawsNothing) {
    render(test::readyPage());
    click(*seen<TextLabel>("Delete Kelmar data"));
    EXPECT_EQ(recordedActions, RecordedActions{"delete none"});
    EXPECT_TRUE(firstSeen<ToggleSwitch>()->isChecked());
}

TEST_F(RequestsOfOneWay, WhatTheQuestionCoversAsksForNothing) {
    render(test::confirmingPage());
    for (QWidget* const covered : {static_cast<QWidget*>(seen<CheckBox>("Logs")),
                                   static_cast<QWidget*>(firstSeen<ToggleSwitch>()),
                                   static_cast<QWidget*>(seen<PushButton>("Uninstall"))}) {
        ASSERT_NE(covered, nullptr);
        click(*covered);
        pressSpace(*covered);
        QAccessibleActionInterface* const actions =
            QAccessible::queryAccessibleInterface(covered)->actionInterface();
        actions->doAction(QAccessibleActionInterface::toggleAction());
        actions->doAction(QAccessibleActionInterface::pressAction());
    }
    settle();
    EXPECT_EQ(recordedActions, RecordedActions{});
}

TEST_F(RequestsOfOneWay, APressThatBeganOnAnotherButtonDoesNothing) {
    render(test::readyPage());
    auto* const button = seen<PushButton>("Quit");
    QTest::mousePress(button, Qt::LeftButton);
    render(test::finishedPage());
    ASSERT_EQ(button->text(), "Try Again") << "the same widget stands for another button now";
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_EQ(recordedActions, RecordedActions{});
}

TEST_F(RequestsOfOneWay, NoLetterOfAFoldersNameIsAKeyThatPressesIt) {
    Page page = test::readyPage();
    std::get<ReadyContent>(page.content).data->lists.at(0).rows.at(0).name = "R&D";
    render(page);
    ASSERT_NE(seen<CheckBox>("R&D"), nullptr);
    EXPECT_TRUE(seen<CheckBox>("R&D")->shortcut().isEmpty());
}

} // namespace
} // namespace kelmar
