#include "tests/ui/qt/page_fixture.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/disclosure.hpp"
#include "ui/qt/push_button.hpp"

#include <QAccessible>
#include <QScrollArea>
#include <QScrollBar>

namespace kelmar {
namespace {

/// Whatever gets the keyboard's focus is in sight, on pages that are longer than the window.
class Focus : public test::PageInAWindow {
protected:
    static Page longFinishedPage() {
        Page page = test::finishedPage();
        auto& rows = std::get<FinishedContent>(page.content).problems->rows;
        rows.resize(30, rows.front());
        return page;
    }

    static Page longReadyPage() {
        Page page = test::readyPage();
        auto& rows = std::get<ReadyContent>(page.content).data->lists.front().rows;
        rows.resize(30, rows.front());
        rows.back().name = "Last";
        return page;
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* const focused = QApplication::focusWidget();
        QTest::keyClick(focused != nullptr ? focused : &window, key, modifiers);
        settle();
    }

    [[nodiscard]] QScrollBar& scroll() const {
        return *window.findChild<QScrollArea*>()->verticalScrollBar();
    }

    static void expectInSight(const QWidget* widget) {
        ASSERT_NE(widget, nullptr);
        EXPECT_TRUE(widget->hasFocus());
        EXPECT_EQ(widget->visibleRegion().boundingRect(), widget->rect());
    }
};

TEST_F(Focus, ComesIntoSightByTheFirstTab) {
    render(longFinishedPage());
    press(Qt::Key_Tab);
    expectInSight(firstSeen<Disclosure>());
}

TEST_F(Focus, ComesIntoSightBackFromTheFooter) {
    render(longReadyPage());
    seen<PushButton>("Quit")->setFocus();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    expectInSight(seen<CheckBox>("Last"));
}

TEST_F(Focus, ComesIntoSightRoundFromTheFooter) {
    render(longReadyPage());
    scroll().setValue(scroll().maximum());
    seen<PushButton>("Uninstall")->setFocus();
    for (int times = 0; times < 3; ++times) {
        press(Qt::Key_Tab);
        const QWidget* const focused = QApplication::focusWidget();
        EXPECT_EQ(focused->visibleRegion().boundingRect(), focused->rect());
    }
}

TEST_F(Focus, ComesIntoSightByAScreenReader) {
    render(longReadyPage());
    QAccessible::queryAccessibleInterface(seen<CheckBox>("Last"))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::setFocusAction());
    settle();
    expectInSight(seen<CheckBox>("Last"));
}

TEST_F(Focus, MovesNothingUnderAMouseThatIsPressed) {
    render(longReadyPage());
    const CheckBox* const last = seen<CheckBox>("Last");
    auto* const area = window.findChild<QScrollArea*>();
    const int top = last->mapTo(area->widget(), QPoint()).y();
    scroll().setValue(top + last->height() / 2 - area->viewport()->height());
    const int place = scroll().value();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      last->mapTo(&window, QPoint(10, 4)));
    settle();
    EXPECT_TRUE(last->hasFocus());
    EXPECT_EQ(scroll().value(), place);
    EXPECT_EQ(recordedActions.size(), 1U);
}

} // namespace
} // namespace kelmar
