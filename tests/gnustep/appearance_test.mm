#include "tests/gnustep/harness/page_fixture.hpp"
#include "tests/gnustep/harness/sample_pages.hpp"
#include "tests/gnustep/harness/screenshot.hpp"
#include "ui/appkit/data_section.h"
#include "ui/appkit/found_section.h"
#include "ui/appkit/note_row.h"
#include "ui/appkit/progress_section.h"
#include "ui/appkit/result_sections.h"
#include "ui/look.hpp"

#include <set>

namespace kelmar {
namespace {

using Places = std::set<CGFloat>;

class Appearance : public test::PageInAWindow {
protected:
    [[nodiscard]] NSView* label(const std::string& text) const { return seen<NSTextField>(text); }

    [[nodiscard]] KelmarContentView* content() const {
        return test::firstSeen<KelmarContentView>(page);
    }

    /// Where the texts begin in the content's rows of that class.
    template <typename Row>
    void addIndents(Places& indents) const {
        for (NSView* const row : test::allSeen<Row>(content())) {
            for (NSView* const each in [row subviews]) {
                if (!test::textOf(each).empty()) {
                    indents.insert(NSMinX(test::placeInWindow(each)));
                }
            }
        }
    }

    void scrollTo(CGFloat top) const { [[content() documentView] scrollPoint:NSMakePoint(0, top)]; }

    /// A row of the content, `y` below its top, is drawn alike in the margin and in the middle.
    [[nodiscard]] bool isBlank(CGFloat y) const {
        NSBitmapImageRep* const pixels = test::drawn(page);
        const auto row = static_cast<NSInteger>(NSMinY([content() frame]) + y);
        return [[pixels colorAtX:2 y:row] isEqual:[pixels colorAtX:Look::windowWidth / 2 y:row]];
    }

    /// In the middle of what header and footer leave, within a point.
    void expectCentred(NSRect place) const {
        const NSRect around = test::placeInWindow(content());
        EXPECT_NEAR(NSMidX(place), NSMidX(around), 1);
        EXPECT_NEAR(NSMidY(place), NSMidY(around), 1);
    }

    /// Only data is left.
    static Page onlyDataPage() {
        Page ready = test::readyPage();
        std::get<ReadyContent>(ready.content).found.rows.clear();
        return ready;
    }

    /// So many rows that the folders stand below what is to be seen.
    static Page longPage(Page ready) {
        auto& rows = std::get<ReadyContent>(ready.content).found.rows;
        rows.resize(12, rows.front());
        return ready;
    }
};

TEST_F(Appearance, TheTextsOfAllRowsHaveOneIndent) {
    Places indents;
    render(test::noticePage());
    addIndents<KelmarFoundRow>(indents);
    addIndents<KelmarNoteRow>(indents);
    render(test::workingPage());
    addIndents<KelmarProgressRow>(indents);
    indents.insert(NSMinX(test::placeInWindow(label("Removing ~/Applications/Kelmar.app"))));
    render(test::problemsPage());
    addIndents<KelmarNoteRow>(indents);
    addIndents<KelmarProblemRow>(indents);
    EXPECT_EQ(indents, Places{Look::pageMargin + Look::rowTextIndent});
}

TEST_F(Appearance, EveryIconStandsInTheMiddleOfItsColumn) {
    Places middles;
    for (const Page& each : {test::noticePage(), test::workingPage(), test::problemsPage()}) {
        render(each);
        for (NSView* const icon : test::allSeen<NSImageView>(content())) {
            middles.insert(NSMidX(test::placeInWindow(icon)));
        }
        for (NSView* const spinner : test::allSeen<NSProgressIndicator>(content())) {
            middles.insert(NSMidX(test::placeInWindow(spinner)));
        }
    }
    EXPECT_EQ(middles, Places{Look::pageMargin + Look::cardPadding + Look::rowIcons.width / 2.0});
}

TEST_F(Appearance, TheTextsOfTheFooterHaveOneIndent) {
    render(test::noticePage());
    Places indents{NSMinX(test::placeInWindow(label("Kelmar is open and will be closed")))};
    render(test::workingPage());
    NSView* const spinner =
        test::firstSeen<NSProgressIndicator>(test::firstSeen<KelmarFooterView>(page));
    ASSERT_NE(spinner, nil);
    for (NSView* const each in [[spinner superview] subviews]) {
        if (each != spinner) {
            indents.insert(NSMinX(test::placeInWindow(each)));
        }
    }
    EXPECT_EQ(indents, Places{Look::pageMargin + Look::noteIcons.width + Look::noteIcons.gap});
}

TEST_F(Appearance, TheHeadingOfAnEmptySectionIsQuietAndCloseToTheNext) {
    const auto colour = [this] { return [seen<NSTextField>("Found on this Mac") textColor]; };
    render(onlyDataPage());
    EXPECT_TRUE([colour() isEqual:[NSColor secondaryLabelColor]]);
    const NSRect heading = test::placeInWindow(label("Found on this Mac"));
    const NSRect data = test::placeInWindow(test::firstSeen<KelmarDataSection>(page));
    EXPECT_EQ(NSMinY(data) - NSMaxY(heading), Look::lineGap);
    render(test::readyPage());
    EXPECT_TRUE([colour() isEqual:[NSColor labelColor]]);
    const NSRect found = test::placeInWindow(test::firstSeen<KelmarFoundSection>(page));
    EXPECT_EQ(NSMinY(test::placeInWindow(test::firstSeen<KelmarDataSection>(page))) - NSMaxY(found),
              Look::sectionGap);
}

TEST_F(Appearance, ScanningIsInTheMiddle) {
    render(test::scanningPage());
    NSView* const spinner = test::firstSeen<NSProgressIndicator>(content());
    ASSERT_NE(spinner, nil);
    NSView* const text = test::firstSeen<NSTextField>(content());
    expectCentred(NSUnionRect(test::placeInWindow(spinner), test::placeInWindow(text)));
}

TEST_F(Appearance, NothingFoundIsInTheMiddle) {
    render(test::nothingFoundPage());
    NSTextField* const text = test::firstSeen<NSTextField>(content());
    expectCentred(test::placeInWindow(text));
    EXPECT_EQ([text alignment], NSTextAlignmentCenter);
    EXPECT_EQ(NSMinX(test::placeInWindow(text)), Look::noticeMargin);
}

TEST_F(Appearance, WhatStandsAloneLeavesTheMiddleToNothingElse) {
    render(test::scanningPage());
    render(test::readyPage());
    EXPECT_EQ(NSMinY(test::placeInWindow(label("Found on this Mac"))),
              NSMinY(test::placeInWindow(content())) + Look::sectionGap);
}

TEST_F(Appearance, TheSummariesOfAllFoldersStandInOneColumn) {
    Page folders = test::foldersPage();
    auto& data = *std::get<ReadyContent>(folders.content).data;
    ASSERT_EQ(data.lists.size(), 2U);
    data.lists.at(0).rows.at(0).name = "A name that is longer than those of all others";
    render(folders);
    Places lefts;
    for (const FolderList& list : data.lists) {
        for (const FolderRow& row : list.rows) {
            lefts.insert(NSMinX(test::placeInWindow(label(row.summary))));
        }
    }
    EXPECT_EQ(lefts.size(), 1U);
}

TEST_F(Appearance, OpeningTheFoldersScrollsThemIntoViewOnce) {
    render(longPage(test::readyPage()));
    render(longPage(test::foldersPage()));
    const NSRect seen = [[content() contentView] documentVisibleRect];
    NSView* const data = test::firstSeen<KelmarDataSection>(page);
    EXPECT_TRUE(NSContainsRect(seen, [data frame]))
        << "the folders reach to " << NSMaxY([data frame]) << ", and what is seen from "
        << NSMinY(seen) << " to " << NSMaxY(seen);
    scrollTo(0);
    Page measured = longPage(test::foldersPage());
    std::get<ReadyContent>(measured.content).data->lists.at(0).rows.at(0).size.bytes = 4'000'000;
    render(measured);
    EXPECT_EQ(NSMinY([[content() contentView] documentVisibleRect]), 0)
        << "a size that came moved the page under the reader";
}

TEST_F(Appearance, ScrolledContentFadesOutBeforeTheLineAtEitherEdge) {
    render(longPage(test::foldersPage()));
    scrollTo(60);
    EXPECT_FALSE(isBlank(Look::scrollVeil + 1)) << "no card is scrolled beneath the header";
    EXPECT_TRUE(isBlank(0));
    EXPECT_TRUE(isBlank(NSHeight([content() frame]) - 1));
    scrollTo(0);
    const std::vector<KelmarVeil*> veils = test::allSeen<KelmarVeil>(page);
    ASSERT_EQ(veils.size(), 1U) << "at the top nothing is hidden";
    EXPECT_EQ(NSMaxY(test::placeInWindow(veils.front())), NSMaxY(test::placeInWindow(content())));
}

TEST_F(Appearance, TheHeaderIsAsHighForASubtitleOfOneLineAsOfTwo) {
    KelmarHeaderView* const header = [KelmarHeaderView header];
    const auto height = [header](const std::string& subtitle) {
        [header render:{"Uninstall Kelmar", subtitle}];
        return [header layOutForWidth:Look::windowWidth];
    };
    const CGFloat one = height("A few minutes.");
    EXPECT_EQ(height("Removes the Kelmar app, its background services, its settings and the "
                     "permissions you gave it."),
              one);
}

/// A control keeps room around itself, which is not to be seen.
TEST_F(Appearance, TheTriangleStandsOnTheCardsEdge) {
    render(test::finishedPage());
    NSView* const text = seen<NSButton>("Details");
    for (NSButton* const each : test::allSeen<NSButton>([text superview])) {
        if (each != text) {
            const NSRect drawn =
                test::placeInWindow(each, [each alignmentRectForFrame:[each frame]]);
            EXPECT_EQ(NSMinX(drawn), Look::pageMargin);
        }
    }
}

} // namespace
} // namespace kelmar
