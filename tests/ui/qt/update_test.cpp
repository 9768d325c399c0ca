#include "tests/ui/qt/page_fixture.hpp"
#include "tests/ui/samples.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/log_view.hpp"
#include "ui/qt/size_label.hpp"

#include <QScrollArea>
#include <QScrollBar>
#include <set>

namespace kelmar {
namespace {

/// Counts the widgets that are drawn.
class Painted : public QObject {
public:
    explicit Painted(QWidget& window) {
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            widget->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            widgets.insert(object);
        }
        return false;
    }

    [[nodiscard]] std::size_t labels() const {
        std::size_t count = 0;
        for (const QObject* const object : widgets) {
            count += qobject_cast<const QLabel*>(object) != nullptr ? 1U : 0U;
        }
        return count;
    }

    std::set<QObject*> widgets;
};

class Update : public test::PageInAWindow {
protected:
    [[nodiscard]] QScrollBar& scroll() const {
        return *window.findChild<QScrollArea*>()->verticalScrollBar();
    }

    /// Unfolds the details of a run with this log, selects a part of it, and scrolls elsewhere.
    LogView& selectInDetails(const LogLines& log) {
        render(test::workingPage(log, true));
        LogView& view = *firstSeen<LogView>();
        view.select({20, 4}, {25, 3});
        view.verticalScrollBar()->setValue(15);
        return view;
    }
};

TEST_F(Update, OfTheSamePageDrawsNothing) {
    render(test::readyPage());
    const Painted painted(window);
    render(test::readyPage());
    EXPECT_EQ(painted.widgets.size(), 0U);
    EXPECT_EQ(window.changes(), 1U);
}

TEST_F(Update, OfOneLineDrawsThatLine) {
    Page working = test::workingPage();
    // A spinner is drawn by its own clock.
    auto& content = std::get<WorkingContent>(working.content);
    content.stages.at(1).icon.symbol = "circle";
    working.footer.busy.reset();
    render(working);
    const Painted painted(window);
    content.detail = "Removing ~/Applications/Kelmar.app";
    render(working);
    EXPECT_TRUE(painted.widgets.contains(seen<TextLabel>("Removing ~/Applications/Kelmar.app")));
    EXPECT_EQ(painted.labels(), 1U);
}

TEST_F(Update, OfOneSizeDrawsThatSize) {
    Page ready = test::readyPage();
    render(ready);
    const Painted painted(window);
    auto& row = std::get<ReadyContent>(ready.content).data->lists.at(0).rows.at(0);
    row.size.bytes = 4001000;
    render(ready);
    EXPECT_TRUE(painted.widgets.contains(seen<SizeLabel>("4 MB")));
    EXPECT_EQ(painted.labels(), 2U) << "the size and the text beside it, which made room";
}

TEST_F(Update, KeepsEveryWidgetOfARowThatStays) {
    Page ready = test::readyPage();
    render(ready);
    auto* const logs = seen<CheckBox>("Logs");
    logs->setFocus();
    auto& data = *std::get<ReadyContent>(ready.content).data;
    data.lists.at(0).rows.push_back({"/h/Kelmar/CDN", "CDN", "Models", true, {7, "CDN"}});
    data.on = false;
    render(ready);
    EXPECT_EQ(seen<CheckBox>("Logs"), logs);
    EXPECT_TRUE(logs->hasFocus());
}

TEST_F(Update, KeepsThePlaceInTheScrolledPage) {
    Page finished = test::finishedPage();
    auto& content = std::get<FinishedContent>(finished.content);
    for (int number = 0; number < 60; ++number) {
        content.problems->rows.push_back({"~/" + std::to_string(number), "it is still there"});
    }
    render(finished);
    scroll().setValue(500);
    content.problems->rows.at(3).reason = "a disk is mounted inside it";
    content.details.shown = true;
    content.details.log = test::removedLines(10);
    render(finished);
    EXPECT_EQ(scroll().value(), 500);
}

TEST_F(Update, BeginsANewPhaseAtItsTop) {
    Page ready = test::readyPage();
    auto& rows = std::get<ReadyContent>(ready.content).found.rows;
    rows.resize(40, rows.front());
    render(ready);
    scroll().setValue(300);
    render(test::finishedPage());
    EXPECT_EQ(scroll().value(), 0);
}

TEST_F(Update, KeepsTheSelectionAndThePlaceInTheDetails) {
    LogLines log = test::removedLines(300);
    LogView& view = selectInDetails(log);
    const QString selected = view.selectedText();
    ASSERT_FALSE(selected.isEmpty());
    for (int times = 0; times < 20; ++times) {
        log.append("one more");
        render(test::workingPage(log, true));
    }
    EXPECT_EQ(view.selectedText(), selected);
    EXPECT_EQ(view.verticalScrollBar()->value(), 15);
    render(test::finishedPage(log, true));
    EXPECT_EQ(firstSeen<LogView>(), &view) << "the details live on when the run is over";
    EXPECT_EQ(view.selectedText(), selected);
    EXPECT_EQ(view.verticalScrollBar()->value(), 15);
}

TEST_F(Update, KeepsTheSelectionAndThePlaceWhileTheDetailsAreFolded) {
    LogLines log = test::removedLines(300);
    LogView& view = selectInDetails(log);
    const QString selected = view.selectedText();
    render(test::workingPage({}, false));
    ASSERT_FALSE(view.isVisible());
    log.append("one more");
    render(test::workingPage(log, true));
    EXPECT_EQ(view.selectedText(), selected);
    EXPECT_EQ(view.verticalScrollBar()->value(), 15);
    EXPECT_EQ(view.text().lineCount(), 301U);
}

TEST_F(Update, KeepsASelectionOfEverythingAtWhatWasThere) {
    LogLines log = test::removedLines(3);
    render(test::workingPage(log, true));
    LogView& view = *firstSeen<LogView>();
    view.selectAll();
    const QString selected = view.selectedText();
    log.append("one more");
    render(test::workingPage(log, true));
    EXPECT_EQ(view.selectedText(), selected);
}

TEST_F(Update, StaysAtTheEndOfTheDetailsForWhoReadsThere) {
    LogLines log = test::removedLines(100);
    render(test::workingPage(log, true));
    LogView& view = *firstSeen<LogView>();
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    for (int times = 0; times < 30; ++times) {
        log.append("one more");
    }
    render(test::workingPage(log, true));
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    EXPECT_FALSE(view.hasSelection());
}

TEST_F(Update, StaysAtTheEndOfTheDetailsWhenTheirHeightChanges) {
    LogLines log = test::removedLines(100);
    render(test::workingPage(log, true));
    LogView& view = *firstSeen<LogView>();
    QScrollBar& bar = *view.verticalScrollBar();
    Page page = test::finishedPage(log, true);
    auto& rows = std::get<FinishedContent>(page.content).problems->rows;
    rows.resize(5, rows.front());
    render(page);
    EXPECT_EQ(bar.value(), bar.maximum());
    render(test::workingPage(log, true));
    EXPECT_EQ(bar.value(), bar.maximum());
    bar.setValue(10);
    render(page);
    EXPECT_EQ(bar.value(), 10);
}

TEST_F(Update, FitsTheDetailsOfFourStagesOntoThePage) {
    Page page = test::workingPage(test::removedLines(100), true);
    auto& stages = std::get<WorkingContent>(page.content).stages;
    stages.resize(4, stages.back());
    render(page);
    EXPECT_EQ(scroll().maximum(), 0);
}

TEST_F(Update, MovesNoHeadlineFromPhaseToPhase) {
    render(test::readyPage());
    const QPoint line = window.findChild<QScrollArea*>()->mapTo(&window, QPoint());
    render(test::workingPage());
    EXPECT_EQ(window.findChild<QScrollArea*>()->mapTo(&window, QPoint()), line);
    Page longer = test::finishedPage();
    longer.header.subtitle = "Some items couldn't be removed. Restart your Mac, then open Kelmar "
                             "Uninstaller again.";
    render(longer);
    EXPECT_EQ(window.findChild<QScrollArea*>()->mapTo(&window, QPoint()), line);
}

TEST_F(Update, ANumberThatChangesIsAsWideAsBefore) {
    SizeLabel label;
    label.render({1'111'000'000, "x"});
    const int width = label.sizeHint().width();
    label.render({8'880'000'000, "x"});
    EXPECT_EQ(label.sizeHint().width(), width);
}

} // namespace
} // namespace kelmar
