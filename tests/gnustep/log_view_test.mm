#include "system/text/foundation_text_macos.hpp"
#include "tests/gnustep/harness/input.hpp"
#include "tests/gnustep/harness/page_fixture.hpp"
#include "tests/gnustep/harness/sample_pages.hpp"
#include "tests/ui/samples.hpp"

#include <chrono>

namespace kelmar {
namespace {

class Log : public test::PageInAWindow {
protected:
    void show(const LogLines& log) { render(test::workingPage(log, true)); }

    [[nodiscard]] NSTextView* text() const { return test::firstSeen<NSTextView>(page); }

    [[nodiscard]] std::string shown() const { return test::textOf(text()); }

    [[nodiscard]] NSRect visible() const {
        return [[[text() enclosingScrollView] contentView] documentVisibleRect];
    }

    [[nodiscard]] bool isAtEnd() const { return NSMaxY(visible()) >= NSMaxY([text() frame]) - 1; }

    void scrollTo(CGFloat place) { [text() scrollPoint:NSMakePoint(0, place)]; }
};

TEST_F(Log, ShowsTheLinesOneBelowTheOther) {
    show(LogLines({"one", "", "three"}));
    EXPECT_EQ(shown(), "one\n\nthree");
}

TEST_F(Log, AddsWhatIsNew) {
    LogLines log({"one"});
    show(log);
    log.append("two");
    show(log);
    log.append("three");
    show(log);
    EXPECT_EQ(shown(), "one\ntwo\nthree");
}

TEST_F(Log, ShowsNamesOfFilesAsHarmlessAsThePageDoes) {
    LogLines log({"Removed a\nb"});
    show(log);
    log.append("\u202Egpj.\x1B[31m");
    show(log);
    EXPECT_EQ(shown(), "Removed a\u240Ab\n\uFFFDgpj.\u241B[31m");
}

TEST_F(Log, BeginsAnewWithAnotherRun) {
    show(LogLines({"one", "two"}));
    show(LogLines({"three", "four", "five"}));
    EXPECT_EQ(shown(), "three\nfour\nfive");
    show(LogLines({"six"}));
    EXPECT_EQ(shown(), "six");
}

TEST_F(Log, IsWholeWhenItIsUnfoldedAgain) {
    LogLines log({"one"});
    show(log);
    render(test::workingPage({}, false));
    log.append("two");
    show(log);
    EXPECT_EQ(shown(), "one\ntwo");
}

TEST_F(Log, CanBeSelectedAndNotChanged) {
    show(LogLines({"one"}));
    EXPECT_FALSE([text() isEditable]);
    EXPECT_TRUE([text() isSelectable]);
    [window makeFirstResponder:text()];
    test::press("a");
    test::press("Delete");
    EXPECT_EQ(shown(), "one");
}

TEST_F(Log, IsSelectedAndCopiedByWhatTheMenuAsks) {
    show(LogLines({"one", "two \xc3\xa9"}));
    [window makeFirstResponder:text()];
    EXPECT_TRUE([NSApp sendAction:@selector(selectAll:) to:nil from:nil]);
    EXPECT_TRUE([NSApp sendAction:@selector(copy:) to:nil from:nil]);
    EXPECT_EQ(plainText([[NSPasteboard generalPasteboard] stringForType:NSStringPboardType]),
              "one\ntwo \xc3\xa9");
}

TEST_F(Log, KeepsTheSelectionAndThePlaceOfWhoReads) {
    LogLines log = test::removedLines(300);
    show(log);
    [text() setSelectedRange:NSMakeRange(40, 25)];
    scrollTo(150);
    ASSERT_EQ(NSMinY(visible()), 150);
    NSTextView* const before = text();
    for (int times = 0; times < 20; ++times) {
        log.append("one more");
        show(log);
    }
    EXPECT_TRUE(NSEqualRanges([text() selectedRange], NSMakeRange(40, 25)));
    EXPECT_EQ(NSMinY(visible()), 150);
    render(test::finishedPage(log, true));
    EXPECT_EQ(text(), before) << "the details live on when the run is over";
    EXPECT_TRUE(NSEqualRanges([text() selectedRange], NSMakeRange(40, 25)));
    EXPECT_EQ(NSMinY(visible()), 150);
}

TEST_F(Log, KeepsASelectionOfEverythingAtWhatWasThere) {
    LogLines log = test::removedLines(3);
    show(log);
    [text() selectAll:nil];
    const NSRange before = [text() selectedRange];
    log.append("one more");
    show(log);
    EXPECT_TRUE(NSEqualRanges([text() selectedRange], before));
}

TEST_F(Log, StaysAtTheEndForWhoReadsThere) {
    LogLines log = test::removedLines(100);
    show(log);
    EXPECT_TRUE(isAtEnd());
    for (int times = 0; times < 30; ++times) {
        log.append("one more");
    }
    show(log);
    EXPECT_TRUE(isAtEnd());
    EXPECT_GT(NSMinY(visible()), 0);
}

TEST_F(Log, StaysAtTheEndWhenItsHeightChanges) {
    const LogLines log = test::removedLines(100);
    show(log);
    Page finished = test::problemsPage(log, true);
    auto& problems = std::get<FinishedContent>(finished.content).problems->rows;
    problems.resize(5, problems.front());
    render(finished);
    EXPECT_TRUE(isAtEnd());
    show(log);
    EXPECT_TRUE(isAtEnd());
}

TEST_F(Log, OfAFloodOfLinesHasThemAllInOrder) {
    LogLines log;
    std::string expected;
    for (int number = 0; number < 20'000; ++number) {
        log.append(std::to_string(number));
        expected += (number == 0 ? "" : "\n") + std::to_string(number);
        if (number % 1'000 == 0) {
            [page render:test::workingPage(log, true)];
        }
    }
    show(log);
    EXPECT_TRUE(shown() == expected);
    EXPECT_TRUE(isAtEnd());
}

} // namespace
} // namespace kelmar
