#include "system/text/foundation_text_macos.hpp"
#include "tests/gnustep/harness/page_fixture.hpp"
#include "tests/gnustep/harness/page_texts.hpp"
#include "tests/gnustep/harness/sample_pages.hpp"
#include "tests/gnustep/harness/screenshot.hpp"
#include "ui/appkit/footer.h"
#include "ui/look.hpp"

#include <algorithm>

namespace kelmar {
namespace {

using Texts = std::vector<std::string>;

class PageView : public test::PageInAWindow {
protected:
    template <typename View>
    [[nodiscard]] View* part() const {
        return test::firstSeen<View>(page);
    }

    /// Of the header and the content.
    [[nodiscard]] Texts textsAbove() const {
        Texts texts = test::textsIn(part<KelmarHeaderView>());
        const Texts more = test::textsIn(part<KelmarContentView>());
        texts.insert(texts.end(), more.begin(), more.end());
        return texts;
    }

    [[nodiscard]] NSButton* footerButton(const Button& button) const {
        return test::seen<NSButton>(part<KelmarFooterView>(), button.text);
    }
};

TEST_F(PageView, ShowsEveryTextOfEveryPageOnceInReadingOrder) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        test::saveScreenshot(page, name);
        EXPECT_EQ(textsAbove(), test::textsAbove(shown)) << name;
    }
}

TEST_F(PageView, ShowsEveryTextOfTheFooterOnce) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        Texts texts = test::textsIn(part<KelmarFooterView>());
        Texts expected = test::textsOfFooter(shown.footer);
        std::sort(texts.begin(), texts.end());
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(texts, expected) << name;
    }
}

TEST_F(PageView, ShowsNothingBesides) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        EXPECT_EQ(test::textsIn(page).size(),
                  textsAbove().size() + test::textsIn(part<KelmarFooterView>()).size())
            << name;
    }
}

TEST_F(PageView, ShowsSymbolsByTheirNames) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        EXPECT_EQ(test::symbolsIn(part<KelmarContentView>()), test::symbolsAbove(shown)) << name;
        Texts notes;
        for (const FooterNote& note : shown.footer.notes) {
            notes.push_back(note.symbol);
        }
        EXPECT_EQ(test::symbolsIn(part<KelmarFooterView>()), notes) << name;
    }
}

TEST_F(PageView, TintsSymbolsByTheirMeaning) {
    render(test::noticePage());
    const auto tintOf = [this](const std::string& symbol) -> NSColor* {
        for (NSImageView* const view : test::allSeen<NSImageView>(page)) {
            if ([[view image] isKindOfClass:[KelmarSymbolImage class]] &&
                plainText([static_cast<KelmarSymbolImage*>([view image]) symbolName]) == symbol) {
                return [view contentTintColor];
            }
        }
        return nil;
    };
    EXPECT_TRUE([tintOf("exclamationmark.triangle.fill") isEqual:[NSColor systemOrangeColor]]);
    EXPECT_TRUE([tintOf("lock.fill") isEqual:[NSColor secondaryLabelColor]]);
    render(test::workingPage());
    EXPECT_TRUE([tintOf("checkmark.circle.fill") isEqual:[NSColor systemGreenColor]]);
}

TEST_F(PageView, ShowsTheIconsOfFilesAndOfTheProgram) {
    render(test::readyPage());
    int files = 0;
    for (NSImageView* const view : test::allSeen<NSImageView>(part<KelmarContentView>())) {
        files += [view image] != nil && ![[view image] isKindOfClass:[KelmarSymbolImage class]];
    }
    EXPECT_EQ(files, 2) << "of the two apps that were found";
    EXPECT_EQ([test::firstSeen<NSImageView>(part<KelmarHeaderView>()) image],
              [NSApp applicationIconImage]);
}

TEST_F(PageView, ButtonsAreEnabledAndHaveTheirKeysAsThePageSays) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        for (const Button& button : shown.footer.buttons) {
            NSButton* const made = footerButton(button);
            ASSERT_NE(made, nil) << name << ": " << button.text;
            EXPECT_EQ([made isEnabled] == YES, button.enabled) << name << ": " << button.text;
            EXPECT_EQ(plainText([made keyEquivalent]), button.key == ButtonKey::defaultAction ? "\r"
                                                       : button.key == ButtonKey::cancelAction
                                                           ? "\033"
                                                           : "")
                << name << ": " << button.text;
            EXPECT_EQ([made hasDestructiveAction] == YES, button.destructive);
        }
    }
}

TEST_F(PageView, ButtonsStandInThePagesOrderAtTheTrailingSide) {
    render(test::readyPage());
    NSView* const quit = seen<NSButton>("Quit");
    NSView* const uninstall = seen<NSButton>("Uninstall");
    EXPECT_LT(NSMaxX(test::placeInWindow(quit)), NSMinX(test::placeInWindow(uninstall)));
    EXPECT_GT(NSMaxX(test::placeInWindow(uninstall)), 600 - 30);
    EXPECT_EQ(NSMidY(test::placeInWindow(quit)), NSMidY(test::placeInWindow(uninstall)));
}

/// Push buttons keep room around themselves, which is not to be seen.
TEST_F(PageView, ButtonsLineUpWithTheMarginsAndNotTheRoomAroundThem) {
    render(test::readyPage());
    const auto edges = [](NSView* view) {
        return test::placeInWindow(view, [view alignmentRectForFrame:[view frame]]);
    };
    EXPECT_EQ(NSMaxX(edges(seen<NSButton>("Uninstall"))), 600 - Look::pageMargin);
    EXPECT_EQ(NSMinX(edges(seen<NSButton>("Choose folders"))),
              NSMinX(test::placeInWindow(seen<NSTextField>("Delete Kelmar data"))));
    EXPECT_EQ(NSMinX(edges(seen<NSButton>("Uninstall"))) - NSMaxX(edges(seen<NSButton>("Quit"))),
              Look::buttonGap);
}

TEST_F(PageView, AnAppThatWasReplacedBetweenTwoScansHasItsNewIcon) {
    render(test::readyPage());
    NSImageView* const icon = test::firstSeen<NSImageView>(part<KelmarContentView>());
    ASSERT_NE([icon image], nil);
    [icon setImage:nil];
    Page shown = test::readyPage();
    std::get<ReadyContent>(shown.content).data->line = "another";
    render(shown);
    EXPECT_EQ([icon image], nil) << "a page of the same scan asks for no icon again";
    render(test::scanningPage());
    render(test::readyPage());
    EXPECT_NE([icon image], nil);
}

TEST_F(PageView, NothingReachesBeyondTheWindowsSides) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        for (NSView* const view : test::seenViews(page)) {
            const NSRect place = test::placeInWindow(view);
            EXPECT_GE(NSMinX(place), 0) << name << ": " << [[view description] UTF8String];
            EXPECT_LE(NSMaxX(place), 600) << name << ": " << [[view description] UTF8String];
        }
    }
}

TEST_F(PageView, NoTextCoversAnother) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        const std::vector<NSTextField*> labels = test::allSeen<NSTextField>(page);
        for (NSView* const one : labels) {
            for (NSView* const other : labels) {
                if ([one superview] != [other superview] || one == other) {
                    continue;
                }
                EXPECT_FALSE(NSIntersectsRect([one frame], [other frame]))
                    << name << ": " << test::textOf(one) << ", " << test::textOf(other);
            }
        }
    }
}

TEST_F(PageView, NoButtonIsNarrowerThanItsText) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        for (NSButton* const button : test::allSeen<NSButton>(page)) {
            EXPECT_GE(NSWidth([button frame]), [[button cell] cellSize].width)
                << name << ": " << test::textOf(button);
        }
    }
}

TEST_F(PageView, TheFooterStandsBelowTheContentAndTheContentBelowTheHeader) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        const NSRect header = test::placeInWindow(part<KelmarHeaderView>());
        const NSRect content = test::placeInWindow(part<KelmarContentView>());
        const NSRect footer = test::placeInWindow(part<KelmarFooterView>());
        EXPECT_EQ(NSMinY(header), 0) << name;
        EXPECT_LT(NSMaxY(header), NSMinY(content)) << name;
        EXPECT_LT(NSMaxY(content), NSMinY(footer)) << name;
        EXPECT_EQ(NSMaxY(footer), 620) << name;
    }
}

TEST_F(PageView, HelpStandsAtItsNote) {
    render(test::readyPage());
    NSView* const note = seen<NSTextField>("Kelmar is open and will be closed");
    EXPECT_EQ(plainText([[note superview] toolTip]), "Any job Kelmar is running stops.");
}

} // namespace
} // namespace kelmar
