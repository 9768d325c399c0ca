#include "tests/ui/qt/page_fixture.hpp"
#include "ui/look.hpp"
#include "ui/qt/icon.hpp"

namespace kelmar {
namespace {

class Spinner : public test::PageInAWindow {
protected:
    [[nodiscard]] int turning() const {
        int count = 0;
        for (const IconLabel* const label : test::widgets<IconLabel>(window)) {
            count += label->isTurning() ? 1 : 0;
        }
        return count;
    }
};

TEST_F(Spinner, TurnsWhileARunIsGoingOn) {
    render(test::workingPage());
    EXPECT_EQ(turning(), 2) << "the stage's and the footer's";
}

TEST_F(Spinner, StandsStillWhenNothingWaits) {
    render(test::workingPage());
    render(test::finishedPage());
    EXPECT_EQ(turning(), 0);
    render(test::readyPage());
    EXPECT_EQ(turning(), 0);
}

TEST_F(Spinner, StandsStillWhileItCannotBeSeen) {
    render(test::workingPage());
    window.hide();
    EXPECT_EQ(turning(), 0);
    window.show();
    settle();
    EXPECT_EQ(turning(), 2);
}

TEST_F(Spinner, BecomesACheckmarkWhenItsStageIsDone) {
    Page working = test::workingPage();
    render(working);
    auto& icon = std::get<WorkingContent>(working.content).stages.at(1).icon;
    icon = {"checkmark.circle.fill", Tint::green, "Done"};
    render(working);
    EXPECT_EQ(turning(), 1);
}

TEST_F(Spinner, LooksDifferentAMomentLater) {
    IconLabel spinner(20);
    spinner.showSpinner(Look::spinner);
    spinner.show();
    QTest::qWait(20);
    const QImage before = spinner.grab().toImage();
    QTest::qWait(300);
    EXPECT_NE(spinner.grab().toImage(), before);
}

} // namespace
} // namespace kelmar
