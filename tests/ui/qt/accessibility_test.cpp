#include "tests/ui/qt/page_fixture.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/disclosure.hpp"
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

    /// What a screen reader was told of last, or null.
    [[nodiscard]] QWidget* notification() const {
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            if (role(widget) == QAccessible::Notification && widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }

    [[nodiscard]] std::string said() const {
        QWidget* const widget = notification();
        return widget != nullptr ? name(widget).toStdString() : "nothing";
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

TEST_F(Accessibility, TheNoticeOfAnAttemptIsSaidWithItsPage) {
    Page scanning;
    scanning.header = {"Uninstall Kelmar", "Looking…"};
    scanning.content = ScanningContent{{"Looking…"}};
    render(test::workingPage());
    render(scanning);
    Page ready = test::readyPage();
    std::get<ReadyContent>(ready.content).notice =
        Callout{"x", Tint::orange, "Nothing was removed."};
    render(ready);
    EXPECT_EQ(said(), "Uninstall Kelmar. Removes the Kelmar app. Nothing was removed.");
    render(test::workingPage());
    EXPECT_EQ(said(), "Uninstalling Kelmar… A few minutes.");
}

TEST_F(Accessibility, AnAnnouncementKeepsItsTextWhenOthersFollowAtOnce) {
    render(test::readyPage());
    std::vector<QWidget*> announced;
    for (const Page& each : {test::workingPage(), test::finishedPage(), test::readyPage()}) {
        render(each);
        ASSERT_NE(notification(), nullptr);
        announced.push_back(notification());
    }
    std::vector<std::string> texts;
    std::vector<bool> visible;
    for (QWidget* const each : announced) {
        texts.push_back(name(each).toStdString());
        visible.push_back(each->isVisible());
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"Uninstalling Kelmar… A few minutes.",
                                               "Kelmar wasn't completely removed. Restart.",
                                               "Uninstall Kelmar. Removes the Kelmar app."}));
    EXPECT_EQ(visible, (std::vector<bool>{false, false, true})) << "only the last can be found";
}

TEST_F(Accessibility, ADisclosureCanBeUnfoldedAndSaysWhetherItIs) {
    render(test::finishedPage());
    const QAccessibleInterface* const details =
        QAccessible::queryAccessibleInterface(firstSeen<Disclosure>());
    EXPECT_EQ(details->role(), QAccessible::Button);
    EXPECT_TRUE(details->state().expandable);
    EXPECT_TRUE(details->state().collapsed);
    EXPECT_FALSE(details->state().expanded);
    EXPECT_EQ(details->text(QAccessible::Description), "");
    render(test::finishedPage({}, true));
    EXPECT_TRUE(details->state().expandable);
    EXPECT_FALSE(details->state().collapsed);
    EXPECT_TRUE(details->state().expanded);
    EXPECT_EQ(details->text(QAccessible::Description), "");
}

TEST_F(Accessibility, TheHeadingOfEachListOfFoldersIsOne) {
    render(test::readyPage());
    EXPECT_EQ(role(seen<TextLabel>("In your home folder, ~/Kelmar")), QAccessible::Heading);
}

TEST_F(Accessibility, TheQuestionHoldsPeopleUntilTheyAnswer) {
    render(test::confirmingPage());
    int questions = 0;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const QAccessible::State state = QAccessible::queryAccessibleInterface(widget)->state();
        EXPECT_EQ(state.modal, role(widget) == QAccessible::AlertMessage);
        questions += state.modal ? 1 : 0;
    }
    EXPECT_EQ(questions, 1);
}

TEST_F(Accessibility, TheSwitchIsWhereItIsDrawn) {
    render(test::readyPage());
    const ToggleSwitch& toggle = *firstSeen<ToggleSwitch>();
    const QRect box = QAccessible::queryAccessibleInterface(firstSeen<ToggleSwitch>())->rect();
    EXPECT_EQ(box.size(), QSize(Look::switchWidth, Look::switchHeight));
    EXPECT_EQ(box.center(), QRect(toggle.mapToGlobal(QPoint()), toggle.size()).center());
}

TEST_F(Accessibility, TheNameOfTheSwitchIsSaidOnce) {
    render(test::readyPage());
    int times = 0;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(widget);
        times += !seen->state().invisible && name(widget) == "Delete Kelmar data" ? 1 : 0;
    }
    EXPECT_EQ(times, 1);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(firstSeen<ToggleSwitch>())
                    ->relations(QAccessible::Label)
                    .isEmpty())
        << "what labels it is not there to be read";
}

TEST_F(Accessibility, NamesAreAsHarmlessAsTheyAreDrawn) {
    const std::string name = std::string("a\x1b[31m\nb\xe2\x80") + '\xae' + "c&d";
    const QString drawn = QString::fromUtf8("a\xe2\x90\x9b[31m\xe2\x90\x8a"
                                            "b\xef\xbf\xbd"
                                            "c&d");
    Page ready = test::readyPage();
    auto& content = std::get<ReadyContent>(ready.content);
    content.found.rows.at(0) = {FoundRow::Symbol{"gearshape"}, name, name};
    content.data->lists.at(0) = {name, {{"/x", name, name, true, {1, name}}}, name};
    ready.footer.notes.at(0).help = name;
    Page working = test::workingPage(LogLines({name}), true);
    std::get<WorkingContent>(working.content).detail = name;
    Page finished = test::finishedPage(LogLines({name}), true);
    std::get<FinishedContent>(finished.content).problems->rows = {{name, name}};
    int found = 0;
    for (const Page& each : {ready, working, finished}) {
        render(each);
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(widget);
            QAccessibleTextInterface* const text = seen->textInterface();
            for (const QString& said :
                 {seen->text(QAccessible::Name), seen->text(QAccessible::Description),
                  text == nullptr ? QString() : text->text(0, text->characterCount())}) {
                EXPECT_FALSE(said.contains(QChar(0x1b))) << said.toStdString();
                EXPECT_FALSE(said.contains(QChar(0x202e))) << said.toStdString();
                found += widget->isVisible() && said.contains(drawn) ? 1 : 0;
            }
        }
    }
    EXPECT_EQ(found, 15) << "every name and description that has the name in it";
}

TEST_F(Accessibility, ALineOfTheRecordCannotPretendToBeTwo) {
    render(test::finishedPage(LogLines({"Removed ~/a\nKelmar has been removed."}), true));
    QAccessibleTextInterface* text = nullptr;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(widget);
        if (widget->isVisible() && seen->role() == QAccessible::EditableText) {
            text = seen->textInterface();
        }
    }
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text(0, text->characterCount()).count('\n'), 0);
}

} // namespace
} // namespace kelmar
