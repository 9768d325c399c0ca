#include "tests/support/durations.hpp"
#include "ui/qt/log_view.hpp"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <chrono>

#include <malloc.h>

namespace kelmar {
namespace {

class Log : public testing::Test {
protected:
    Log() {
        view.resize(552, 300);
        view.show();
    }

    void settle() const {
        while (!view.isComplete()) {
            QCoreApplication::processEvents();
        }
    }

    /// A log as long as that of a large removal; as many bytes as the text has.
    static std::size_t longRecord(LogLines& log) {
        std::size_t bytes = 0;
        for (int number = 0; number < 100'000; ++number) {
            const std::string line =
                "Removed ~/Library/Caches/com.quobrintal.app/" + std::to_string(number);
            log.append(line);
            bytes += line.size() + 1;
        }
        return bytes;
    }

    [[nodiscard]] std::string shown() const {
        return view.text().text({}, view.text().end()).toStdString();
    }

    LogView view;
};

TEST_F(Log, ShowsTheLinesOneBelowTheOther) {
    view.render(LogLines({"one", "", "three"}));
    EXPECT_EQ(shown(), "one\n\nthree");
}

TEST_F(Log, AddsWhatIsNew) {
    LogLines log({"one"});
    view.render(log);
    log.append("two");
    view.render(log);
    EXPECT_EQ(shown(), "one\ntwo");
}

TEST_F(Log, BeginsAnewWithAnotherRun) {
    view.render(LogLines({"one", "two"}));
    view.render(LogLines({"three", "four", "five"}));
    EXPECT_EQ(shown(), "three\nfour\nfive");
    view.render(LogLines());
    EXPECT_EQ(shown(), "");
}

TEST_F(Log, CanBeReadAndCopiedAndNotChanged) {
    view.render(LogLines({"one"}));
    QTest::keyClicks(&view, "abc");
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(shown(), "one");
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.selectedText(), "one");
}

TEST_F(Log, OfAHundredThousandLinesNeverHoldsTheWindowUp) {
    LogLines log;
    longRecord(log);
    std::chrono::milliseconds longest = test::workOf([&] { view.render(log); });
    while (!view.isComplete()) {
        longest = std::max(longest, test::workOf([] {
                               QCoreApplication::processEvents(QEventLoop::AllEvents, 0);
                           }));
    }
    EXPECT_LT(longest, std::chrono::milliseconds(250))
        << "bench/ has the figure that a person would feel";
    EXPECT_EQ(view.text().lineCount(), 100'000U);
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
}

TEST_F(Log, OfAnotherRunTakesThePlaceOfOneThatIsStillComing) {
    LogLines log;
    for (int number = 0; number < 5'000; ++number) {
        log.append(std::to_string(number));
    }
    view.render(log);
    view.render(LogLines({"new"}));
    settle();
    EXPECT_EQ(shown(), "new");
}

TEST_F(Log, OfAHundredThousandLinesTakesAtMostThreeTimesItsText) {
    const auto inUse = [] {
        const struct mallinfo2 use = ::mallinfo2(); // mallinfo(3)
        return use.uordblks + use.hblkhd;
    };
    const std::size_t before = inUse();
    if (before == 0) {
        GTEST_SKIP() << "another allocator, which does not say how much is in use";
    }
    LogLines log;
    const std::size_t text = longRecord(log);
    view.render(log);
    settle();
    view.grab();
    EXPECT_GE(inUse() - before, text);
    EXPECT_LE(inUse() - before, 3 * text);
}

TEST_F(Log, WrapsWhatIsLongerThanARow) {
    view.render(LogLines({std::string(500, 'x'), "short", "ab " + std::string(100, 'y')}));
    const LogText& text = view.text();
    const int rows = text.layout(0)->lineCount();
    EXPECT_GT(rows, 3);
    EXPECT_EQ(text.firstRow(1), static_cast<std::uint32_t>(rows));
    EXPECT_EQ(text.firstRow(2), static_cast<std::uint32_t>(rows) + 1);
    EXPECT_EQ(text.rowCount(), rows + 1 + text.layout(2)->lineCount());
    EXPECT_EQ(text.lineOfRow(rows - 1), 0U);
    EXPECT_EQ(text.lineOfRow(rows), 1U);
}

TEST_F(Log, IsSelectedByTheMouse) {
    view.render(LogLines({"one", "two", "three"}));
    const auto middle = [this](LogView::Place place) {
        const QRect drawn = view.placeInViewport(place);
        return QPoint(drawn.left() + 1, drawn.center().y());
    };
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, middle({0, 1}));
    QMouseEvent move(QEvent::MouseMove, middle({2, 2}),
                     view.viewport()->mapToGlobal(middle({2, 2})), Qt::NoButton, Qt::LeftButton,
                     {});
    QApplication::sendEvent(view.viewport(), &move);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, middle({2, 2}));
    EXPECT_EQ(view.selectedText(), "ne\ntwo\nth");
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, middle({1, 1}));
    EXPECT_EQ(view.selectedText(), "two");
}

TEST_F(Log, IsSelectedByKeysFromWhatIsInSight) {
    LogLines log;
    for (int number = 100; number < 200; ++number) {
        log.append(std::to_string(number));
    }
    view.render(log);
    view.verticalScrollBar()->setValue(40);
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view.selectedText(), "140\n1");
    EXPECT_EQ(view.verticalScrollBar()->value(), 40);
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    EXPECT_EQ(view.selectedText(), "140\n1");
}

TEST_F(Log, IsReadAndSelectedByAScreenReader) {
    view.render(LogLines({"one two", "", "three"}));
    QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(seen->role(), QAccessible::EditableText);
    EXPECT_TRUE(seen->state().readOnly && seen->state().multiLine);
    QAccessibleTextInterface* const text = seen->textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), 14);
    EXPECT_EQ(text->text(0, 14), "one two\n\nthree");
    int start = 0;
    int end = 0;
    EXPECT_EQ(text->textAtOffset(5, QAccessible::LineBoundary, &start, &end), "one two\n");
    EXPECT_EQ(text->textAfterOffset(5, QAccessible::LineBoundary, &start, &end), "\n");
    EXPECT_EQ(text->textAfterOffset(8, QAccessible::LineBoundary, &start, &end), "three");
    EXPECT_EQ(start, 9);
    EXPECT_EQ(end, 14);
    EXPECT_EQ(text->textBeforeOffset(9, QAccessible::LineBoundary, &start, &end), "\n");
    EXPECT_EQ(text->textAtOffset(5, QAccessible::WordBoundary, &start, &end), "two");
    EXPECT_EQ(text->textAtOffset(9, QAccessible::CharBoundary, &start, &end), "t");
    text->setSelection(0, 4, 11);
    EXPECT_EQ(view.selectedText(), "two\n\nth");
    text->selection(0, &start, &end);
    EXPECT_EQ(start, 4);
    EXPECT_EQ(end, 11);
    EXPECT_EQ(text->selectionCount(), 1);
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(10).center() - QPoint(1, 0)), 10);
}

} // namespace
} // namespace kelmar
