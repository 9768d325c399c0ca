#include "ui/qt/log_view.hpp"
#include "ui/qt/menu.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QTest>
#include <string>
#include <vector>

namespace kelmar {
namespace {

class MainMenu : public testing::Test {
protected:
    MainMenu() {
        window.setWindowTitle("Kelmar Uninstaller");
        window.setCentralWidget(text);
        fillMenuBar(*window.menuBar(), mainMenu(),
                    {[this](MenuAction action) { chosen.push_back(action); }});
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        text->render(LogLines({"a record"}));
    }

    [[nodiscard]] QMenu* menu(int index) const {
        return window.menuBar()->actions()[index]->menu();
    }

    [[nodiscard]] QAction* item(const QString& title) const {
        for (QAction* const top : window.menuBar()->actions()) {
            for (QAction* const action : top->menu()->actions()) {
                if (action->text() == title) {
                    return action;
                }
            }
        }
        return nullptr;
    }

    QMainWindow window;
    LogView* text = new LogView;
    std::vector<MenuAction> chosen;
};

TEST_F(MainMenu, HasItemsAndKeysWithControlForCommand) {
    std::vector<std::string> lines;
    for (const QAction* const top : window.menuBar()->actions()) {
        lines.push_back(top->text().toStdString());
        for (const QAction* const action : top->menu()->actions()) {
            lines.push_back(action->isSeparator()
                                ? "-"
                                : "  " + action->text().toStdString() + " " +
                                      action->shortcut().toString().toStdString());
        }
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"Kelmar Uninstaller", "  About Kelmar Uninstaller ",
                                               "-", "  Hide Kelmar Uninstaller Ctrl+H",
                                               "  Hide Others Ctrl+Alt+H", "  Show All ", "-",
                                               "  Quit Kelmar Uninstaller Ctrl+Q", "Edit",
                                               "  Copy Ctrl+C", "  Select All Ctrl+A", "Window",
                                               "  Minimize Ctrl+M", "-", "  Kelmar Uninstaller "}));
}

TEST_F(MainMenu, GivesTheApplicationWhatIsTheApplications) {
    for (const char* const title : {"About Kelmar Uninstaller", "Hide Kelmar Uninstaller",
                                    "Quit Kelmar Uninstaller", "Minimize"}) {
        item(title)->trigger();
    }
    EXPECT_EQ(chosen, (std::vector{MenuAction::about, MenuAction::hide, MenuAction::quit,
                                   MenuAction::minimize}));
}

TEST_F(MainMenu, CopiesAndSelectsInTheTextThatHasTheFocus) {
    text->setFocus();
    item("Select All")->trigger();
    EXPECT_EQ(text->selectedText(), "a record");
    item("Copy")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "a record");
    EXPECT_EQ(chosen, std::vector<MenuAction>{});
}

TEST_F(MainMenu, GreysWhatNothingAnswersTo) {
    text->clearFocus();
    Q_EMIT menu(1)->aboutToShow();
    EXPECT_FALSE(item("Copy")->isEnabled());
    EXPECT_FALSE(item("Select All")->isEnabled());
    Q_EMIT menu(1)->aboutToHide();
    text->setFocus();
    Q_EMIT menu(1)->aboutToShow();
    EXPECT_FALSE(item("Copy")->isEnabled()) << "nothing is selected";
    EXPECT_TRUE(item("Select All")->isEnabled());
    text->selectAll();
    Q_EMIT menu(1)->aboutToShow();
    EXPECT_TRUE(item("Copy")->isEnabled());
    Q_EMIT menu(0)->aboutToShow();
    EXPECT_FALSE(item("Hide Others")->isEnabled());
    EXPECT_FALSE(item("Show All")->isEnabled());
    EXPECT_TRUE(item("Quit Kelmar Uninstaller")->isEnabled());
}

TEST_F(MainMenu, IsGreyWhereNothingAnswersBeforeItWasEverOpened) {
    EXPECT_FALSE(item("Hide Others")->isEnabled());
    EXPECT_FALSE(item("Show All")->isEnabled());
    EXPECT_TRUE(item("Quit Kelmar Uninstaller")->isEnabled());
    Q_EMIT menu(0)->aboutToShow();
    Q_EMIT menu(0)->aboutToHide();
    EXPECT_FALSE(item("Hide Others")->isEnabled());
    EXPECT_TRUE(item("Quit Kelmar Uninstaller")->isEnabled());
}

} // namespace
} // namespace kelmar
