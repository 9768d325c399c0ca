#include "system/text/foundation_text_macos.hpp"
#include "tests/gnustep/harness/page_fixture.hpp"
#include "tests/gnustep/harness/page_texts.hpp"
#include "tests/gnustep/harness/sample_pages.hpp"

#include <algorithm>
#include <set>

namespace kelmar {
namespace {

using NameList = std::multiset<std::string>;

/// What the views tell a screen reader. Whether it is read out is the Mac's affair.
class Accessibility : public test::PageInAWindow {
protected:
    /// The names that views have been given, of those that are to be seen.
    [[nodiscard]] NameList names() const {
        NameList all;
        for (NSView* const view : test::seenViews(page)) {
            id const told = test::exposed(view);
            if ([told isAccessibilityElement] && [[told accessibilityLabel] length] > 0) {
                all.insert(plainText([told accessibilityLabel]));
            }
        }
        return all;
    }

    /// Since the test began.
    [[nodiscard]] NameList announced() const {
        NSArray* const all = KelmarAnnouncements();
        NameList texts;
        for (NSUInteger index = before_; index < [all count]; ++index) {
            texts.insert(plainText([all objectAtIndex:index]));
        }
        return texts;
    }

private:
    NSUInteger before_ = [KelmarAnnouncements() count];
};

TEST_F(Accessibility, TheSwitchIsNamedByItsLabelAndHelpedByItsLine) {
    render(test::readyPage());
    NSSwitch* const toggle = test::firstSeen<NSSwitch>(page);
    EXPECT_EQ(plainText([test::exposed(toggle) accessibilityLabel]), "Delete Kelmar data");
    EXPECT_EQ(plainText([test::exposed(toggle) accessibilityHelp]),
              "Cases, imported documents, exports, AI models and logs. You can't undo this.");
}

TEST_F(Accessibility, ACheckBoxSaysWhatItsFolderHolds) {
    render(test::foldersPage());
    EXPECT_EQ(plainText([test::exposed(seen<NSButton>("Store")) accessibilityHelp]),
              "What is in Store");
}

TEST_F(Accessibility, ASizeSaysWhatItIsTheSizeOf) {
    render(test::foldersPage());
    for (const char* const name :
         {"Store, 1.5 MB", "Logs, 4.5 MB", "CDN, Measuring…", "Delete Kelmar data, 6 MB"}) {
        EXPECT_EQ(names().count(name), 1U) << name;
    }
}

TEST_F(Accessibility, StagesSayHowFarTheyAre) {
    render(test::workingPage());
    EXPECT_EQ(names().count("Done"), 1U);
    EXPECT_EQ(names().count("Waiting"), 2U);
    int turning = 0;
    for (NSView* const view : test::allSeen<NSProgressIndicator>(page)) {
        turning += [[view accessibilityLabel] isEqualToString:@"In progress"];
    }
    EXPECT_EQ(turning, 1);
}

TEST_F(Accessibility, IconsThatSayNothingArePassedOver) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        for (NSImageView* const view : test::allSeen<NSImageView>(page)) {
            id const told = test::exposed(view);
            EXPECT_TRUE(![told isAccessibilityElement] || [[told accessibilityLabel] length] > 0)
                << name;
        }
    }
}

TEST_F(Accessibility, TheDetailsAreOneControlAndOneText) {
    render(test::workingPage(LogLines({"a line"}), true));
    EXPECT_EQ(names().count("Details"), 1U) << "the triangle, and not its text as well";
    EXPECT_EQ(plainText([test::firstSeen<NSTextView>(page) accessibilityLabel]), "Details");
}

TEST_F(Accessibility, EveryControlHasAName) {
    for (const auto& [name, shown] : test::everyPage()) {
        render(shown);
        for (NSView* const view : test::seenViews(page)) {
            const bool isControl =
                [view isKindOfClass:[NSButton class]] || [view isKindOfClass:[NSSwitch class]];
            if (isControl && [test::exposed(view) isAccessibilityElement]) {
                EXPECT_TRUE(!test::textOf(view).empty() ||
                            [[test::exposed(view) accessibilityLabel] length] > 0)
                    << name << ": " << [[view description] UTF8String];
            }
        }
    }
}

TEST_F(Accessibility, AHelpfulNoteSaysItsHelp) {
    render(test::readyPage());
    EXPECT_EQ(plainText([test::exposed(seen<NSTextField>("Kelmar is open and will be closed"))
                  accessibilityHelp]),
              "Any job Kelmar is running stops.");
}

TEST_F(Accessibility, TheSwitchsNameIsSaidOnce) {
    render(test::readyPage());
    EXPECT_FALSE([test::exposed(seen<NSTextField>("Delete Kelmar data")) isAccessibilityElement]);
    EXPECT_EQ(names().count("Delete Kelmar data"), 1U);
}

TEST_F(Accessibility, NamesAreAsHarmlessAsWhatIsDrawn) {
    Page shown = test::foldersPage();
    std::get<ReadyContent>(shown.content).data->lists.at(0).rows.at(0).size.of = "\u202Esdr\x1B";
    render(shown);
    EXPECT_EQ(names().count("\uFFFDsdr\u241B, 1.5 MB"), 1U) << testing::PrintToString(names());
}

TEST_F(Accessibility, WhatBeginsAPartOfThePageIsAHeading) {
    using Headings = std::vector<std::string>;
    const auto headings = [this] {
        Headings all;
        for (NSTextField* const label : test::allSeen<NSTextField>(page)) {
            if ([[test::exposed(label) accessibilityRole] isEqualToString:@"AXHeading"]) {
                all.push_back(test::textOf(label));
            }
        }
        return all;
    };
    render(test::readyPage());
    EXPECT_EQ(headings(), (Headings{"Uninstall Kelmar", "Found on this Mac", "Your data"}));
    render(test::problemsPage());
    EXPECT_EQ(headings(), (Headings{"Kelmar wasn't completely removed", "Not removed"}));
}

TEST_F(Accessibility, TheDetailsSayWhetherTheyAreUnfolded) {
    const auto unfolded = [this] {
        for (NSButton* const each : test::allSeen<NSButton>(page)) {
            id const told = test::exposed(each);
            if ([[told accessibilityLabel] isEqualToString:@"Details"]) {
                return [told isAccessibilityExpanded] == YES;
            }
        }
        ADD_FAILURE() << "no control of that name";
        return false;
    };
    render(test::workingPage());
    EXPECT_FALSE(unfolded());
    render(test::workingPage({}, true));
    EXPECT_TRUE(unfolded());
}

/// Views stay from page to page, and those that a later one needs are made then.
TEST_F(Accessibility, ViewsStandInTheOrderOfThePage) {
    std::vector<std::pair<std::string, Page>> pages = test::everyPage();
    for (const std::size_t again : {2U, 6U, 3U, 4U, 10U}) {
        pages.push_back(pages.at(again));
    }
    for (const auto& [name, shown] : pages) {
        render(shown);
        std::vector<std::string> expected = test::textsAbove(shown);
        const std::vector<std::string> footer = test::textsOfFooter(shown.footer);
        expected.insert(expected.end(), footer.begin(), footer.end());
        EXPECT_EQ(test::textsInOrderOfViews(page), expected) << name;
    }
}

TEST_F(Accessibility, ANoticeIsAnnouncedWithItsPage) {
    render(test::workingPage());
    render(test::noticePage());
    const Page shown = test::noticePage();
    EXPECT_EQ(announced().count(shown.header.announcement() +
                                " The administrator's password was not entered. Nothing was "
                                "removed."),
              1U)
        << testing::PrintToString(announced());
}

TEST_F(Accessibility, ANewPhaseIsAnnouncedOnce) {
    render(test::workingPage());
    Page later = test::workingPage();
    std::get<WorkingContent>(later.content).detail = "Removing something else";
    later.header.subtitle = "Another minute.";
    render(later);
    EXPECT_NE(seen<NSTextField>("Another minute."), nil);
    EXPECT_EQ(announced(), NameList{test::workingPage().header.announcement()});
    render(test::finishedPage());
    EXPECT_EQ(announced().count(test::finishedPage().header.announcement()), 1U);
    EXPECT_EQ(announced().size(), 2U);
}

} // namespace
} // namespace kelmar
