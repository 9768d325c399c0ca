#include "system/text/foundation_text_macos.hpp"
#include "system/text/harmless_text.hpp"
#include "tests/gnustep/harness/page_fixture.hpp"
#include "tests/gnustep/harness/page_texts.hpp"
#include "tests/gnustep/harness/sample_pages.hpp"
#include "tests/ui/samples.hpp"
#include "ui/appkit/app_delegate.h"
#include "ui/drawn_text.hpp"

namespace kelmar {
namespace {

/// Names of files are somebody else's text: none of them may break the page, vanish, or end the
/// program.
class Names : public test::PageInAWindow {
protected:
    void renderWith(const std::string& name) {
        Page ready = test::foldersPage();
        auto& content = std::get<ReadyContent>(ready.content);
        content.notice = Callout{"exclamationmark.triangle.fill", Tint::orange, name};
        content.found.rows.at(0).title = name;
        content.found.rows.at(0).icon = FoundRow::Image{name};
        content.data->line = name;
        content.data->lists.at(0).heading = name;
        content.data->lists.at(0).otherItems = name;
        content.data->lists.at(0).rows.at(0).name = name;
        content.data->lists.at(0).rows.at(0).summary = name;
        render(ready);
        expectSeen(name, 7);
        Page working = test::workingPage(LogLines({name}), true);
        std::get<WorkingContent>(working.content).detail = name;
        render(working);
        expectSeen(name, 2);
        Page finished = test::problemsPage(LogLines({name}), true);
        std::get<FinishedContent>(finished.content).problems->rows = {{name, name}};
        render(finished);
        expectSeen(name, 3);
    }

    /// So many views show it in its harmless form, each without anything of it missing, inside the
    /// window.
    void expectSeen(const std::string& name, int times) {
        int seen = 0;
        for (NSView* const view : test::seenViews(page)) {
            seen += test::textOf(view) == plainText(foundationText(harmlessText(name))) ? 1 : 0;
            EXPECT_LE(NSMaxX(test::placeInWindow(view)), 600) << test::textOf(view);
        }
        EXPECT_EQ(seen, times) << name;
    }
};

TEST_F(Names, OrdinaryOnesAreShown) {
    renderWith("~/Library/Something else");
}

TEST_F(Names, BytesThatAreNoTextAreShownAsReplacements) {
    renderWith("~/\xff\xfe\x80/\xc3\x28");
    EXPECT_NE(seen<NSTextField>("~/\uFFFD\uFFFD\uFFFD/\uFFFD("), nil);
    EXPECT_NE(seen<NSTextView>("~/\uFFFD\uFFFD\uFFFD/\uFFFD("), nil);
}

TEST_F(Names, NullCharactersEndNothing) {
    using namespace std::string_literals;
    renderWith("before\0after"s);
    const std::string text = test::textOf(test::firstSeen<NSTextView>(page));
    EXPECT_EQ(text.find("after"), text.size() - 5) << "what stands behind it is not cut off";
}

TEST_F(Names, VeryLongOnesWrapOrAreShortened) {
    renderWith("~/" + std::string(2000, 'x'));
}

TEST_F(Names, LineBreaksControlCharactersAndTurnedDirectionsAreShown) {
    renderWith("a\tb\x1b[31me\xe2\x80\xae"
               "f");
}

/// A right-to-left name beside an ordinary one, and slashes where a line may break.
TEST_F(Names, AreDrawnForTheEyeAndReadAloudAsTheyAre) {
    const std::string name = "~/\u05d0\u05d1/Kelmar";
    const std::string drawn = drawnText(name);
    ASSERT_NE(drawn, name);
    renderWith(name);
    Page finished = test::problemsPage();
    std::get<FinishedContent>(finished.content).problems->rows = {{name, name}};
    render(finished);
    int labels = 0;
    for (NSTextField* const label : test::allSeen<NSTextField>(page)) {
        if (plainText([label stringValue]) == drawn) {
            EXPECT_EQ(plainText([test::exposed(label) accessibilityValue]), name);
            ++labels;
        }
    }
    EXPECT_EQ(labels, 2);
    Page ready = test::foldersPage();
    std::get<ReadyContent>(ready.content).data->lists.at(0).rows.at(0).name = name;
    render(ready);
    NSButton* const check = seen<NSButton>(name);
    ASSERT_NE(check, nil);
    EXPECT_EQ(plainText([check title]), drawn);
    EXPECT_EQ(plainText([test::exposed(check) accessibilityLabel]), name);
}

/// What was not removed is looked for elsewhere, by its path.
TEST_F(Names, OfProblemsAreSelectedAndCopiedWithoutWhatGuidesTheirLines) {
    AppDelegate* const delegate = [[[AppDelegate alloc] initWithPaths:test::machinePaths()
                                                              sources:{}] autorelease];
    [window setDelegate:delegate];
    const std::string name = "~/\u05d0\u05d1/Kelmar";
    Page finished = test::problemsPage();
    std::get<FinishedContent>(finished.content).problems->rows = {{name, "it is still there"}};
    render(finished);
    NSTextField* const path = seen<NSTextField>(name);
    ASSERT_TRUE([path isSelectable]);
    EXPECT_FALSE([path isEditable]);
    EXPECT_TRUE([seen<NSTextField>("it is still there") isSelectable]);
    [path selectText:nil];
    ASSERT_TRUE([NSApp sendAction:@selector(copy:) to:nil from:nil]);
    EXPECT_EQ(plainText([[NSPasteboard generalPasteboard] stringForType:NSPasteboardTypeString]),
              name);
    [window setDelegate:nil];
}

TEST_F(Names, OfAHundredRowsScrollInsideThePage) {
    Page shown = test::problemsPage();
    auto& rows = std::get<FinishedContent>(shown.content).problems->rows;
    for (int number = 0; number < 100; ++number) {
        rows.push_back({"~/Library/" + std::to_string(number), "it is still there"});
    }
    render(shown);
    EXPECT_EQ(test::textsIn(test::firstSeen<KelmarContentView>(page)).size(),
              test::textsAbove(shown).size() - 2);
    NSScrollView* const scroll = test::firstSeen<KelmarContentView>(page);
    EXPECT_GT(NSHeight([[scroll documentView] frame]), 3000);
    EXPECT_LT(NSHeight([scroll frame]), 500);
}

} // namespace
} // namespace kelmar
