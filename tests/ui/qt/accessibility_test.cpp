#include "tests/ui/qt/page_fixture.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/toggle_switch.hpp"

#include <QAccessible>
#include <functional>
#include <set>

namespace kelmar {
namespace {

class Accessibility : public test::PageInAWindow {
protected:
    static QString name(QObject* object) {
        return QAccessible::queryAccessibleInterface(object)->text(QAccessible::Name);
    }

    static QAccessible::Role role(QObject* object) {
        return QAccessible::queryAccessibleInterface(object)->role();
    }

    /// The names of all that is seen, as a screen reader would come upon them.
    [[nodiscard]] std::multiset<std::string> names() const {
        std::multiset<std::string> all;
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && !name(widget).isEmpty()) {
                all.insert(name(widget).toStdString());
            }
        }
        return all;
    }
};

TEST_F(Accessibility, EveryControlHasAName) {
    for (const Page& each :
         {test::readyPage(), test::confirmingPage(), test::workingPage(LogLines({"x"}), true),
          test::finishedPage(LogLines({"x"}), true)}) {
        render(each);
        int controls = 0;
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0) {
                EXPECT_NE(name(widget), "") << widget->metaObject()->className();
                ++controls;
            }
        }
        EXPECT_GT(controls, 1);
    }
}

TEST_F(Accessibility, TheSwitchIsNamedByItsLabel) {
    render(test::readyPage());
    EXPECT_EQ(name(firstSeen<ToggleSwitch>()), "Delete Kelmar data");
    EXPECT_EQ(role(firstSeen<ToggleSwitch>()), QAccessible::CheckBox);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(firstSeen<ToggleSwitch>())
                  ->text(QAccessible::Description),
              "You can't undo this.");
}

TEST_F(Accessibility, ACheckBoxSaysWhatItsFolderHolds) {
    render(test::readyPage());
    QAccessibleInterface* const box =
        QAccessible::queryAccessibleInterface(seen<CheckBox>("Store"));
    EXPECT_EQ(box->text(QAccessible::Name), "Store");
    EXPECT_EQ(box->text(QAccessible::Description), "Imported documents");
    EXPECT_TRUE(box->state().checked);
}

TEST_F(Accessibility, ASizeSaysWhatItIsTheSizeOf) {
    render(test::readyPage());
    EXPECT_TRUE(names().contains("Store, 4 KB"));
    EXPECT_TRUE(names().contains("Delete Kelmar data, 5 KB"));
}

TEST_F(Accessibility, StagesSayHowFarTheyAre) {
    render(test::workingPage());
    for (const char* const state : {"Done", "In progress", "Waiting"}) {
        EXPECT_EQ(names().count(state), 1U) << state;
    }
}

TEST_F(Accessibility, TitlesAreHeadings) {
    render(test::readyPage());
    EXPECT_EQ(role(seen<TextLabel>("Uninstall Kelmar")), QAccessible::Heading);
    EXPECT_EQ(role(seen<TextLabel>("Your data")), QAccessible::Heading);
    EXPECT_EQ(name(seen<TextLabel>("Your data")), "Your data");
}

TEST_F(Accessibility, IsReadFromTopToBottomWhateverWasMadeFirst) {
    render(test::workingPage());
    render(test::finishedPage());
    render(test::readyPage());
    render(test::finishedPage(LogLines({"x"}), true));
    std::vector<std::string> read;
    const std::function<void(QAccessibleInterface*)> walk = [&](QAccessibleInterface* each) {
        const auto* const widget = qobject_cast<QWidget*>(each->object());
        if (widget != nullptr && widget->isVisible() && !each->text(QAccessible::Name).isEmpty() &&
            each->role() != QAccessible::Notification) {
            read.push_back(each->text(QAccessible::Name).toStdString());
        }
        for (int index = 0; index < each->childCount(); ++index) {
            walk(each->child(index));
        }
    };
    walk(QAccessible::queryAccessibleInterface(&window));
    EXPECT_EQ(read,
              (std::vector<std::string>{"Kelmar wasn't completely removed", "Restart.", "Gone.",
                                        "Not removed", "~/Kelmar", "it is still there", "Details",
                                        "Details", "Try Again", "Quit"}));
}

TEST_F(Accessibility, TheQuestionIsAnAlert) {
    render(test::confirmingPage());
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if (role(widget) == QAccessible::AlertMessage) {
            EXPECT_EQ(name(widget), "Delete 5 KB of Kelmar data?");
            return;
        }
    }
    FAIL() << "no alert";
}

} // namespace
} // namespace kelmar
