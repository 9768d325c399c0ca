#include "system/text/foundation_text_macos.hpp"
#include "tests/gnustep/harness/dirty_region.hpp"
#include "tests/gnustep/harness/page_fixture.hpp"
#include "tests/gnustep/harness/sample_pages.hpp"

#include <set>

namespace kelmar {
namespace {

/// The views of the page, and what each shows, to be compared with later ones.
using Shown = std::map<NSView*, std::string>;

class Update : public test::PageInAWindow {
protected:
    [[nodiscard]] Shown shown() const {
        Shown views;
        for (NSView* const view : test::seenViews(page)) {
            views[view] = test::textOf(view);
        }
        return views;
    }

    /// How many views of `before` show something else now; none has gone and none has come.
    [[nodiscard]] int changesSince(const Shown& before) const {
        const Shown now = shown();
        EXPECT_EQ(now.size(), before.size());
        int changes = 0;
        for (const auto& [view, text] : before) {
            const auto found = now.find(view);
            EXPECT_NE(found, now.end()) << "a view was made anew for: " << text;
            changes += found != now.end() && found->second != text ? 1 : 0;
        }
        return changes;
    }

    [[nodiscard]] NSScrollView* column() const { return test::firstSeen<KelmarContentView>(page); }

    [[nodiscard]] CGFloat place() const {
        return NSMinY([[column() contentView] documentVisibleRect]);
    }

    /// Something was drawn, and only there.
    static void expectWithin(NSView* view, NSRect drawn) {
        EXPECT_FALSE(NSIsEmptyRect(drawn));
        EXPECT_TRUE(NSContainsRect(NSInsetRect(test::placeInWindow(view), -1, -1), drawn))
            << plainText(NSStringFromRect(drawn)) << " was drawn, and not only "
            << plainText(NSStringFromRect(test::placeInWindow(view)));
    }

    static std::vector<ProblemRow> rows(int count) {
        std::vector<ProblemRow> list;
        for (int number = 0; number < count; ++number) {
            list.push_back({"~/" + std::to_string(number), "it is still there"});
        }
        return list;
    }
};

TEST_F(Update, OfTheSamePageDrawsNothing) {
    for (const auto& [name, each] : test::everyPage()) {
        render(each);
        const Shown before = shown();
        const test::DirtyRegion dirty;
        [page render:each];
        EXPECT_EQ(changesSince(before), 0) << name;
        EXPECT_TRUE(NSIsEmptyRect(dirty.bounds())) << name;
    }
}

TEST_F(Update, OfOneSizeDrawsThatSize) {
    Page ready = test::foldersPage();
    render(ready);
    NSView* const size = seen<NSTextField>("1.5 MB");
    const Shown before = shown();
    const test::DirtyRegion dirty;
    std::get<ReadyContent>(ready.content).data->lists.at(0).rows.at(0).size.bytes = 4'000'000;
    [page render:ready];
    EXPECT_EQ(changesSince(before), 1);
    EXPECT_EQ(seen<NSTextField>("4 MB"), size);
    expectWithin([size superview], dirty.bounds());
}

TEST_F(Update, OfOneLineDrawsThatLine) {
    Page working = test::workingPage();
    render(working);
    const Shown before = shown();
    const test::DirtyRegion dirty;
    std::get<WorkingContent>(working.content).detail = "Removing something else";
    [page render:working];
    EXPECT_EQ(changesSince(before), 1);
    NSView* const line = seen<NSTextField>("Removing something else");
    EXPECT_EQ(before.at(line), "Removing ~/Applications/Kelmar.app");
    expectWithin(line, dirty.bounds());
}

TEST_F(Update, OfAStageTurnsItsSpinnerIntoItsSymbol) {
    Page working = test::workingPage();
    render(working);
    EXPECT_EQ(test::allSeen<NSProgressIndicator>(page).size(), 2U)
        << "the stage's and the footer's";
    std::get<WorkingContent>(working.content).stages.at(1).icon = {"checkmark.circle.fill",
                                                                   Tint::green, "Done"};
    render(working);
    EXPECT_EQ(test::allSeen<NSProgressIndicator>(page).size(), 1U);
    render(test::finishedPage());
    EXPECT_EQ(test::allSeen<NSProgressIndicator>(page).size(), 0U);
}

TEST_F(Update, KeepsEveryViewOfARowThatStaysAndItsFocus) {
    Page ready = test::foldersPage();
    render(ready);
    NSButton* const logs = seen<NSButton>("Logs");
    [window makeFirstResponder:logs];
    auto& data = *std::get<ReadyContent>(ready.content).data;
    data.lists.at(0).rows.push_back({"/Users/ada/Kelmar/Z", "Z", "Models", true, {7, "Z"}});
    data.line = "another line";
    render(ready);
    EXPECT_EQ(seen<NSButton>("Logs"), logs);
    EXPECT_EQ([window firstResponder], logs);
    EXPECT_NE(seen<NSButton>("Z"), nil);
    data.lists.at(0).rows.pop_back();
    render(ready);
    EXPECT_EQ(seen<NSButton>("Logs"), logs);
    EXPECT_EQ(seen<NSButton>("Z"), nil);
}

TEST_F(Update, KeepsThePlaceInTheScrolledPage) {
    Page finished = test::problemsPage();
    auto& content = std::get<FinishedContent>(finished.content);
    content.problems->rows = rows(60);
    render(finished);
    [[column() documentView] scrollPoint:NSMakePoint(0, 500)];
    content.problems->rows.at(3).reason = "a disk is mounted inside it";
    render(finished);
    EXPECT_EQ(place(), 500);
    EXPECT_NE(seen<NSTextField>("a disk is mounted inside it"), nil);
}

TEST_F(Update, BeginsANewPhaseAtItsTop) {
    Page finished = test::problemsPage();
    std::get<FinishedContent>(finished.content).problems->rows = rows(60);
    render(finished);
    [[column() documentView] scrollPoint:NSMakePoint(0, 500)];
    ASSERT_EQ(place(), 500);
    Page ready = test::readyPage();
    auto& found = std::get<ReadyContent>(ready.content).found.rows;
    found.resize(40, found.front());
    render(ready);
    EXPECT_EQ(place(), 0);
}

TEST_F(Update, MovesNoHeadlineFromPhaseToPhase) {
    render(test::readyPage());
    const CGFloat line = NSMinY(test::placeInWindow(column()));
    for (const auto& [name, each] : test::everyPage()) {
        render(each);
        EXPECT_EQ(NSMinY(test::placeInWindow(column())), line) << name;
    }
}

TEST_F(Update, KeepsTheFocusedButtonOfTheFooterThroughAPhase) {
    render(test::readyPage());
    NSButton* const quit = seen<NSButton>("Quit");
    [window makeFirstResponder:quit];
    render(test::finishedPage());
    EXPECT_EQ(seen<NSButton>("Quit"), quit);
    EXPECT_EQ([window firstResponder], quit);
}

} // namespace
} // namespace kelmar
