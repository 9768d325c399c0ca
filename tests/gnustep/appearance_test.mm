#include "tests/gnustep/harness/page_fixture.hpp"
#include "tests/gnustep/harness/sample_pages.hpp"
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

} // namespace
} // namespace kelmar
