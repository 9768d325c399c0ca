#include "tests/ui/qt/page_fixture.hpp"
#include "tests/ui/qt/painted_texts.hpp"
#include "ui/look.hpp"
#include "ui/qt/busy_row.hpp"
#include "ui/qt/card.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/disclosure.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/header.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/main_window.hpp"
#include "ui/qt/note_row.hpp"
#include "ui/qt/push_button.hpp"
#include "ui/qt/selectable_text.hpp"
#include "ui/qt/tool_tip.hpp"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextDocument>
#include <cmath>
#include <cstdlib>
#include <set>

namespace kelmar {
namespace {

/// How the window looks to somebody who looks closely.
class Appearance : public test::PageInAWindow {
protected:
    [[nodiscard]] QPoint place(const QWidget* widget) const {
        return widget->mapTo(&window, QPoint());
    }

    [[nodiscard]] int textLeft(const QString& text) const { return place(label(text)).x(); }

    [[nodiscard]] TextLabel* label(const QString& text) const {
        auto* const found = seen<TextLabel>(text);
        EXPECT_NE(found, nullptr) << text.toStdString();
        return found;
    }

    [[nodiscard]] QScrollArea& content() const { return *window.findChild<QScrollArea*>(); }

    /// Whether `widget` stands in the middle of the content.
    void expectCentred(const QWidget& widget) const {
        const QRect outside(place(content().viewport()), content().viewport()->size());
        const QPoint middle = QRect(place(&widget), widget.size()).center() - outside.center();
        EXPECT_LE(std::abs(middle.x()), 2);
        EXPECT_LE(std::abs(middle.y()), Look::sectionGap);
    }

    static Page pageOf(Content content) {
        Page page = test::readyPage();
        page.content = std::move(content);
        return page;
    }
};

TEST_F(Appearance, AHeadingWithNothingUnderItIsOneQuietLine) {
    Page page = test::readyPage();
    std::get<ReadyContent>(page.content).found.rows.clear();
    render(page);
    const TextLabel& heading = *label("Found on this Mac");
    EXPECT_LE(place(label("Your data")).y() - place(&heading).y() - heading.height(),
              Look::lineGap);
}

TEST_F(Appearance, ScanningIsInTheMiddle) {
    render(pageOf(ScanningContent{{"Looking for Kelmar…"}}));
    const auto* const row = firstSeen<BusyRow>();
    ASSERT_NE(row, nullptr);
    expectCentred(*row);
    EXPECT_LT(row->width(), 300) << "the row fills the page, and its text stands at the left";
}

TEST_F(Appearance, NothingFoundIsInTheMiddle) {
    const std::string text = "Kelmar Uninstaller looked for the Kelmar app, its background "
                             "services, its settings and its data, and found none of them.";
    render(pageOf(NothingFoundContent{text}));
    TextLabel& found = *label(QString::fromStdString(text));
    expectCentred(found);
    for (const test::PaintedText& line : test::paintedTexts(found)) {
        EXPECT_NEAR(line.place.center().x(), found.width() / 2.0, 4);
    }
}

TEST_F(Appearance, TheTextsOfAllRowsHaveOneIndent) {
    Page ready = test::readyPage();
    std::get<ReadyContent>(ready.content).notice =
        Callout{"exclamationmark.triangle.fill", Tint::orange, "Cancelled."};
    render(ready);
    std::set<int> indents{textLeft("Kelmar 4.2"), textLeft("Background services"),
                          textLeft("Cancelled.")};
    render(test::workingPage());
    indents.insert(textLeft("Closing"));
    render(test::finishedPage());
    indents.insert(textLeft("Gone."));
    indents.insert(place(seen<SelectableText>("~/Kelmar")).x());
    EXPECT_EQ(indents, std::set<int>{Look::pageMargin + Look::rowTextIndent});
}

TEST_F(Appearance, TheTextsOfTheFooterHaveOneIndent) {
    render(test::readyPage());
    const int note = textLeft("Asks for an administrator's password");
    render(test::workingPage());
    EXPECT_EQ(textLeft("Please wait."), note);
}

TEST_F(Appearance, TheHeaderIsAsHighInEveryPhase) {
    const QFont before = QGuiApplication::font();
    QFont large = before;
    large.setPixelSize(16); // at which the texts, and not the icon, make the height
    QGuiApplication::setFont(large);
    const auto height = [](const std::string& subtitle) {
        HeaderWidget header;
        header.render({"Uninstall Kelmar", subtitle});
        return std::max(header.minimumHeight(), header.heightForWidth(Look::windowWidth));
    };
    const int two = height("Removes the Kelmar app, its background services, its settings and the "
                           "permissions you gave it.");
    EXPECT_EQ(height("A few minutes."), two);
    QGuiApplication::setFont(before);
}

TEST_F(Appearance, TheChevronStandsOnTheCardsEdge) {
    render(test::finishedPage());
    auto* const details = firstSeen<Disclosure>();
    for (const bool unfolded : {false, true}) {
        details->render({"Details", Action::toggleDetails}, unfolded);
        const QImage image = window.grab().toImage();
        const QPoint corner = place(details);
        const QRgb page = image.pixel(corner.x() + 1, corner.y() + 1);
        int left = window.width();
        for (int y = corner.y(); y < corner.y() + details->height(); ++y) {
            for (int x = corner.x(); x < left; ++x) {
                if (image.pixel(x, y) != page) {
                    left = x;
                }
            }
        }
        EXPECT_NEAR(left, Look::pageMargin, 2);
    }
}

TEST_F(Appearance, TheCardsOfAPageHaveOneEdge) {
    render(test::finishedPage(LogLines({"Removed ~/x"}), true));
    for (const Card* const card : test::widgets<Card>(window)) {
        if (card->isVisible()) {
            EXPECT_EQ(place(card).x(), Look::pageMargin);
            EXPECT_EQ(card->width(), Look::windowWidth - 2 * Look::pageMargin);
        }
    }
}

/// How much darker an icon makes a light ground.
double ink(IconLabel& icon) {
    const QImage image = icon.grab().toImage();
    const int ground = qGray(image.pixel(0, 0));
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += ground - qGray(image.pixel(x, y));
        }
    }
    return sum;
}

TEST_F(Appearance, APendingStageIsNoHeavierThanOneThatRuns) {
    IconLabel pending(Look::rowIcon);
    pending.showSymbol("circle", Tint::secondary, Look::rowSymbol);
    IconLabel running(Look::rowIcon);
    running.showSpinner(Look::spinner);
    EXPECT_GT(ink(pending), 0);
    EXPECT_LE(ink(pending), ink(running));
}

TEST_F(Appearance, SymbolsGrowWithTheText) {
    const QFont before = QGuiApplication::font();
    QFont large = before;
    large.setPixelSize(2 * bodyPoints);
    QGuiApplication::setFont(large);
    const NoteRow row(Look::noteIcons, TextStyle::callout, TextTone::secondary);
    EXPECT_EQ(row.findChild<QLabel*>()->width(), 2 * Look::noteIcons.width);
    EXPECT_GE(CheckBox().sizeHint().height(), 2 * Look::checkBox);
    QGuiApplication::setFont(before);
    EXPECT_EQ(grown(Look::rowSymbol), Look::rowSymbol);
}

TEST_F(Appearance, TheSummariesOfAllFoldersStandInOneColumn) {
    Page page = test::readyPage();
    auto& lists = std::get<ReadyContent>(page.content).data->lists;
    lists.push_back({"Shared by all users",
                     {{"/s/CDN_remote", "CDN_remote", "Copy of the source", true, {1, "x"}}},
                     std::nullopt});
    render(page);
    EXPECT_EQ(textLeft("Imported documents"), textLeft("Service logs"));
    EXPECT_EQ(textLeft("Imported documents"), textLeft("Copy of the source"));
}

TEST_F(Appearance, TheBoxesStandBelowTheHeadingOfTheirList) {
    render(test::readyPage());
    EXPECT_EQ(place(seen<CheckBox>("Store")).x() + Look::focusRoom,
              textLeft("In your home folder, ~/Kelmar"));
}

TEST_F(Appearance, FoldersThatAreUnfoldedScrollIntoView) {
    Page page = test::readyPage();
    auto& ready = std::get<ReadyContent>(page.content);
    ready.found.rows = std::vector<FoundRow>(6, ready.found.rows.front());
    const std::vector<FolderList> lists = std::exchange(ready.data->lists, {});
    render(page);
    ASSERT_EQ(content().verticalScrollBar()->value(), 0);
    ready.data->lists = lists;
    render(page);
    const TextLabel& last = *label("Also in ~/Kelmar: notes.txt.");
    EXPECT_EQ(last.visibleRegion().boundingRect(), last.rect());
    EXPECT_EQ(label("Your data")->visibleRegion().boundingRect(), label("Your data")->rect());
    content().verticalScrollBar()->setValue(0);
    ready.data->line = "another";
    render(page);
    EXPECT_EQ(content().verticalScrollBar()->value(), 0) << "only when they are unfolded";
}

TEST_F(Appearance, WhatIsScrolledTouchesNeitherLineAroundIt) {
    Page page = test::finishedPage();
    auto& rows = std::get<FinishedContent>(page.content).problems->rows;
    rows = std::vector<ProblemRow>(20, rows.front());
    render(page);
    content().verticalScrollBar()->setValue(content().verticalScrollBar()->maximum() / 2);
    settle();
    const QImage image = window.grab().toImage();
    const QColor ground = Colours(window.palette()).page;
    const int top = place(&content()).y();
    for (int x = 0; x < content().viewport()->width(); ++x) {
        ASSERT_NEAR(image.pixelColor(x, top).red(), ground.red(), 2) << x;
        ASSERT_NEAR(image.pixelColor(x, top + content().height() - 1).red(), ground.red(), 2) << x;
    }
}

TEST_F(Appearance, ACancelledRunsPageFitsWithoutScrolling) {
    Page page = test::readyPage();
    auto& ready = std::get<ReadyContent>(page.content);
    ready.notice = Callout{"exclamationmark.triangle.fill", Tint::orange,
                           "Nothing was removed: removing Kelmar needs an administrator's "
                           "password. Kelmar was closed; open it again from Applications if you "
                           "still need it."};
    ready.found.rows = std::vector<FoundRow>(4, ready.found.rows.front());
    ready.data->lists.clear();
    ready.data->folders.text = "Choose folders";
    render(page);
    EXPECT_EQ(content().verticalScrollBar()->maximum(), 0);
    EXPECT_FALSE(seen<PushButton>("Choose folders")->visibleRegion().isEmpty());
}

TEST_F(Appearance, ALightCalloutIsLighterThanThePage) {
    const Colours colours(window.palette());
    ASSERT_FALSE(colours.dark);
    const QColor ground = colours.tinted(colours.orange);
    EXPECT_EQ(ground.value(), 255) << "no mud: " << ground.name().toStdString();
    EXPECT_GT(ground.saturation(), 15);
}

TEST_F(Appearance, TheQuestionDimsThePageOnceAndDrawsItAsItWas) {
    render(test::readyPage());
    const QImage before = window.grab().toImage();
    render(test::confirmingPage());
    const QImage after = window.grab().toImage();
    const QColor scrim = Colours(window.palette()).scrim;
    const double kept = 1 - static_cast<double>(scrim.alphaF());
    // The footer has two buttons; the sheet hangs high above it. Return presses another one now, so
    // that one of them is not highlighted any more.
    const auto* const button = seen<PushButton>("Uninstall");
    const QRect other(button->mapTo(&window, QPoint()), button->size());
    for (int y = window.height() - Look::footerHeight; y < window.height(); ++y) {
        for (int x = 0; x < window.width(); ++x) {
            if (other.contains(x, y)) {
                continue;
            }
            const QColor was = before.pixelColor(x, y);
            const QColor is = after.pixelColor(x, y);
            ASSERT_NEAR(is.red(), was.red() * kept, 2) << x << ", " << y;
            ASSERT_NEAR(is.blue(), was.blue() * kept, 2) << x << ", " << y;
        }
    }
}

TEST_F(Appearance, TheQuestionHangsFromTheTopInNoMoreThanTwoLines) {
    Page page = test::confirmingPage();
    page.confirmation->message =
        "Your cases, imported documents, exports and downloaded AI models will be deleted for "
        "good. You can't undo this.";
    render(page);
    const TextLabel& message = *label(QString::fromStdString(page.confirmation->message));
    EXPECT_LE(message.height(), 2 * lineHeight(TextStyle::body));
    const QWidget* const sheet = seen<PushButton>("Cancel")->parentWidget()->parentWidget();
    EXPECT_EQ(place(sheet).y(), 0);
    EXPECT_LT(sheet->height(), window.height() / 3) << "what it asks about stays readable";
}

TEST_F(Appearance, OfControlsOnlyOneThatIsItselfDisabledIsGreyed) {
    render(test::confirmingPage());
    EXPECT_FALSE(seen<CheckBox>("Store")->isEnabled());
    EXPECT_FALSE(isGreyed(*seen<CheckBox>("Store")));
    EXPECT_FALSE(isGreyed(*seen<PushButton>("Uninstall")));
    render(test::workingPage());
    EXPECT_TRUE(isGreyed(*seen<PushButton>("Quit")));
}

TEST_F(Appearance, AProblemIsAnItemOfAListWithASign) {
    render(test::finishedPage());
    const QWidget* const row = seen<SelectableText>("~/Kelmar")->parentWidget();
    const auto icons = test::widgets<IconLabel>(*row);
    ASSERT_EQ(icons.size(), 1U);
    EXPECT_EQ(icons.front()->shown(), "exclamationmark.circle");
}

TEST_F(Appearance, ALongPathBreaksAfterItsSlashes) {
    Page page = test::finishedPage();
    std::string path = "rm: ";
    for (int depth = 0; depth < 30; ++depth) {
        path += "/" + std::to_string(2'026'000 + depth); // no line breaks before digits by itself
    }
    std::get<FinishedContent>(page.content).problems->rows = {{"~/x", path}};
    render(page);
    auto* const text = seen<SelectableText>(QString::fromStdString(path));
    ASSERT_NE(text, nullptr);
    const auto lines = test::paintedTexts(*text);
    ASSERT_GT(lines.size(), 2U);
    for (std::size_t number = 0; number + 1 < lines.size(); ++number) {
        EXPECT_TRUE(test::inked(lines[number].text).endsWith('/'))
            << lines[number].text.toStdString();
    }
}

TEST_F(Appearance, AProblemsTextIsSelectedAndCopiedAsItIs) {
    Page page = test::finishedPage();
    std::get<FinishedContent>(page.content).problems->rows = {{"~/a/\nb", "rm: ~/a: no"}};
    render(page);
    auto* const path = seen<SelectableText>("~/a/\nb");
    ASSERT_NE(path, nullptr);
    QTest::mouseDClick(path, Qt::LeftButton);
    EXPECT_TRUE(path->hasFocus());
    EXPECT_EQ(path->selected(), "~/a/\nb");
    path->copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "~/a/\nb");
    auto* const reason = seen<SelectableText>("rm: ~/a: no");
    const int middle = reason->height() / 2;
    QTest::mousePress(reason, Qt::LeftButton, {}, QPoint(0, middle));
    QTest::mouseMove(reason, QPoint(reason->fontMetrics().horizontalAdvance("rm: ~/a"), middle));
    QTest::mouseRelease(reason, Qt::LeftButton, {}, QPoint(400, middle));
    EXPECT_EQ(path->selected(), "") << "one text has the selection";
    EXPECT_TRUE(QString("rm: ~/a: no").startsWith(reason->selected()));
    EXPECT_GT(reason->selected().size(), 3);
}

TEST_F(Appearance, ATooltipIsPlainText) {
    Page page = test::readyPage();
    page.footer.notes.front().help = "R&D <b>";
    render(page);
    EXPECT_EQ(firstSeen<NoteRow>()->toolTip(), "R&D <b>");
    QTextDocument document;
    document.setHtml(toolTipMarkup("R&D <b> &amp;"));
    EXPECT_EQ(document.toPlainText(), "R&D <b> &amp;");
}

TEST_F(Appearance, ALongTooltipHasPlacesToBreakItsLines) {
    const QString markup = toolTipMarkup("/" + QString(300, 'x') + "/y");
    EXPECT_TRUE(Qt::mightBeRichText(markup)) << "the toolkit wraps nothing else";
    qsizetype longest = 0;
    for (const QString& part : markup.split(QChar(0x200B))) {
        longest = std::max(longest, part.size());
    }
    EXPECT_LT(longest, 60);
}

QPalette paletteOf(const QColor& page, const QColor& text) {
    QPalette palette;
    palette.setColor(QPalette::Window, page);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

TEST(MenuBarLine, IsWholeOnLightAndDarkDesktops) {
    for (const QPalette& palette : {paletteOf(QColor(240, 240, 241), QColor(30, 30, 32)),
                                    paletteOf(QColor(43, 45, 48), QColor(238, 239, 240))}) {
        test::RecordedActions actions;
        MainWindow window(
            test::recordInto(actions), [](MenuAction) {}, [] { return true; });
        window.setPalette(palette);
        window.show();
        QTest::qWait(1);
        const QImage bar = window.menuBar()->grab().toImage();
        const QColor hairline = Colours(palette).hairline;
        for (int x = 0; x < bar.width(); ++x) {
            ASSERT_EQ(bar.pixelColor(x, bar.height() - 1), hairline) << x;
        }
    }
}

TEST(MenuBarLine, AndAllOfTheBarIsDimmedUnderAQuestion) {
    test::RecordedActions actions;
    MainWindow window(
        test::recordInto(actions), [](MenuAction) {}, [] { return true; });
    window.show();
    window.page().render(test::readyPage());
    const QColor before = window.menuBar()->grab().toImage().pixelColor(599, 3);
    window.page().render(test::confirmingPage());
    const QColor after = window.menuBar()->grab().toImage().pixelColor(599, 3);
    const double kept = 1 - static_cast<double>(Colours(window.palette()).scrim.alphaF());
    EXPECT_NEAR(after.red(), before.red() * kept, 2);
    window.page().render(test::readyPage());
    EXPECT_EQ(window.menuBar()->grab().toImage().pixelColor(599, 3), before);
}

} // namespace
} // namespace kelmar
