#pragma once

#include "tests/ui/qt/widgets.hpp"
#include "tests/ui/recorded_actions.hpp"
#include "ui/qt/page.hpp"
#include "ui/qt/text_label.hpp"

#include <gtest/gtest.h>

#include <QTest>
#include <memory>
#include <string>
#include <vector>

namespace kelmar::test {

/// Counts what is drawn anywhere.
class PaintCount : public QObject {
public:
    PaintCount() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

/// A page in a window of its usual size; what its controls ask for is recorded.
class PageInAWindow : public testing::Test {
protected:
    PageInAWindow() {
        window.setFixedSize(600, 596);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void render(const Page& shown) {
        window.render(shown);
        settle();
    }

    /// Lets what was put off happen: layouts, pictures, timers of no time. Until nothing is drawn
    /// any more, on a busy machine too; a spinner is drawn for ever, and is not waited for that
    /// long.
    static void settle() {
        PaintCount paints;
        int drawn = -1;
        for (int turn = 0; turn < 10 && paints.count != drawn; ++turn) {
            drawn = paints.count;
            QTest::qWait(20);
        }
    }

    template <class Widget>
    [[nodiscard]] Widget* seen(const QString& text) const {
        return test::seen<Widget>(window, text);
    }

    template <class Widget>
    [[nodiscard]] Widget* firstSeen() const {
        for (Widget* const widget : widgets<Widget>(window)) {
            if (widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }

    RecordedActions recordedActions;
    PageWidget window{recordInto(recordedActions)};
};

/// A page on which there is a choice.
inline Page readyPage() {
    Page page;
    page.header = {"Uninstall Kelmar", "Removes the Kelmar app."};
    ReadyContent content;
    content.found = {{"Found on this Mac"},
                     {{FoundRow::Image{"/Applications/Kelmar.app"}, "Kelmar 4.2", "/Applications"},
                      {FoundRow::Symbol{"gearshape.2"}, "Background services", "Running now"}}};
    DataSection data;
    data.title = {"Your data"};
    data.label = "Delete Kelmar data";
    data.on = true;
    data.total = {5000, "Delete Kelmar data"};
    data.line = "You can't undo this.";
    data.folders = {"Hide folders", Action::toggleFolders};
    data.lists = {{"In your home folder, ~/Kelmar",
                   {{"/h/Kelmar/Store", "Store", "Imported documents", true, {4000, "Store"}},
                    {"/h/Kelmar/Logs", "Logs", "Service logs", false, {1000, "Logs"}}},
                   "Also in ~/Kelmar: notes.txt."}};
    content.data = data;
    page.content = content;
    page.footer.notes = {{"lock.fill", "Asks for an administrator's password", "Why."}};
    page.footer.buttons = {{"Quit", Action::quit, ButtonKey::cancelAction},
                           {"Uninstall", Action::uninstallClicked, ButtonKey::defaultAction}};
    return page;
}

inline Page workingPage(const LogLines& log = {}, bool unfolded = false) {
    Page page;
    page.header = {"Uninstalling Kelmar…", "A few minutes."};
    page.content = WorkingContent{{{{"checkmark.circle.fill", Tint::green, "Done"}, "Closing"},
                                   {{std::nullopt, Tint::secondary, "In progress"}, "Removing"},
                                   {{"circle", Tint::secondary, "Waiting"}, "Deleting"}},
                                  "Removing ~/Library/Kelmar",
                                  {{"Details", Action::toggleDetails}, unfolded, log}};
    page.footer.busy = {"Please wait."};
    page.footer.buttons = {{"Quit", Action::quit, ButtonKey::defaultAction, false}};
    return page;
}

inline Page finishedPage(const LogLines& log = {}, bool unfolded = false) {
    Page page;
    page.header = {"Kelmar wasn't completely removed", "Restart."};
    page.content =
        FinishedContent{{{"checkmark.circle.fill", Tint::green, "Gone."}},
                        ProblemsSection{{"Not removed"}, {{"~/Kelmar", "it is still there"}}},
                        {{"Details", Action::toggleDetails}, unfolded, log}};
    page.footer.buttons = {{"Try Again", Action::scan},
                           {"Quit", Action::quit, ButtonKey::defaultAction}};
    return page;
}

inline Page confirmingPage() {
    Page page = readyPage();
    Button goOn{"Uninstall and Delete Data", Action::uninstall};
    goOn.destructive = true;
    page.confirmation = {"Delete 5 KB of Kelmar data?",
                         "For good.",
                         {goOn, {"Cancel", Action::dismissConfirmation, ButtonKey::both}}};
    return page;
}

} // namespace kelmar::test
