#include "tests/support/durations.hpp"
#include "ui/qt/log_view.hpp"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <chrono>

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

    [[nodiscard]] std::string shown() const { return view.toPlainText().toStdString(); }

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
    EXPECT_EQ(view.textCursor().selectedText(), "one");
}

TEST_F(Log, OfAHundredThousandLinesNeverHoldsTheWindowUp) {
    LogLines log;
    for (int number = 0; number < 100'000; ++number) {
        log.append("Removed ~/Library/Caches/com.quobrintal.app/" + std::to_string(number));
    }
    std::chrono::milliseconds longest = test::workOf([&] { view.render(log); });
    while (!view.isComplete()) {
        longest = std::max(longest, test::workOf([] {
                               QCoreApplication::processEvents(QEventLoop::AllEvents, 0);
                           }));
    }
    EXPECT_LT(longest, std::chrono::milliseconds(250))
        << "bench/ has the figure that a person would feel";
    EXPECT_EQ(view.blockCount(), 100'000);
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

} // namespace
} // namespace kelmar
