#include "tests/ui/qt/page_fixture.hpp"

#include <QScrollArea>
#include <QScrollBar>

namespace kelmar {
namespace {

/// Names of files are somebody else's text: none of them may break the page.
class Names : public test::PageInAWindow {
protected:
    void renderWith(const std::string& name) {
        Page ready = test::readyPage();
        auto& content = std::get<ReadyContent>(ready.content);
        content.notice = Callout{"exclamationmark.triangle.fill", Tint::orange, name};
        content.found.rows.at(0).title = name;
        content.found.rows.at(0).detail = name + " and " + name;
        content.data->line = name;
        content.data->lists.at(0).heading = name;
        content.data->lists.at(0).otherItems = name + ", " + name;
        content.data->lists.at(0).rows.at(0).summary = name;
        render(ready);
        expectFits();
        Page working = test::workingPage(LogLines({name}), true);
        std::get<WorkingContent>(working.content).detail = "Removing " + name;
        render(working);
        expectFits();
        Page finished = test::finishedPage(LogLines({name}), true);
        std::get<FinishedContent>(finished.content).problems->rows = {{name, name}};
        std::get<FinishedContent>(finished.content).summary.push_back({"folder", {}, name});
        render(finished);
        expectFits();
    }

    void expectFits() const {
        EXPECT_EQ(window.width(), 600);
        for (const QWidget* const widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible()) {
                EXPECT_GE(widget->mapTo(&window, QPoint()).x(), 0);
                EXPECT_LE(widget->mapTo(&window, QPoint(widget->width(), 0)).x(), 600)
                    << widget->metaObject()->className();
            }
        }
        for (const TextLabel* const label : test::widgets<TextLabel>(window)) {
            if (label->isVisible() && label->hasHeightForWidth()) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << "a text is cut: " << label->text().toStdString();
            }
        }
    }
};

TEST_F(Names, OrdinaryOnesFit) {
    renderWith("~/Library/Kelmar");
}

TEST_F(Names, AVeryLongOneWithoutABlankWraps) {
    renderWith("~/" + std::string(2000, 'x'));
}

TEST_F(Names, AVeryDeepPathWraps) {
    std::string path = "~";
    for (int depth = 0; depth < 200; ++depth) {
        path += "/folder" + std::to_string(depth);
    }
    renderWith(path);
}

TEST_F(Names, EmojiOfManyPartsFit) {
    std::string name;
    for (int times = 0; times < 25; ++times) { // as long as a path can be
        name += "👩‍👩‍👧‍👦🏳️‍🌈";
    }
    renderWith(name);
}

TEST_F(Names, RightToLeftScriptFits) {
    std::string name;
    for (int times = 0; times < 60; ++times) {
        name += "תיקייה/مجلد ";
    }
    renderWith(name);
}

TEST_F(Names, BytesThatAreNoTextFit) {
    renderWith("~/\xff\xfe\x80/\xc3\x28");
}

TEST_F(Names, LineBreaksAndControlCharactersFit) {
    const std::string rightToLeft = std::string("\xe2\x80") + '\xae'; // not turning this line round
    renderWith("a\nb\rc\td\x1b[31me" + rightToLeft + "f");
}

TEST_F(Names, MarkupIsText) {
    Page page = test::readyPage();
    std::get<ReadyContent>(page.content).found.rows.at(0).title = "<h1>Kelmar</h1>&amp;";
    render(page);
    const TextLabel* const label = seen<TextLabel>("<h1>Kelmar</h1>&amp;");
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(Names, WhatLosesItsMiddleIsWholeInItsHelp) {
    Page page = test::workingPage();
    const std::string path = "Removing ~/" + std::string(300, 'x') + "/end";
    std::get<WorkingContent>(page.content).detail = path;
    render(page);
    EXPECT_EQ(seen<TextLabel>(QString::fromStdString(path))->toolTip().toStdString(), path);
    std::get<WorkingContent>(page.content).detail = "short";
    render(page);
    EXPECT_EQ(seen<TextLabel>("short")->toolTip(), "");
}

TEST_F(Names, AHundredRowsScrollInsideThePage) {
    Page page = test::finishedPage();
    auto& rows = std::get<FinishedContent>(page.content).problems->rows;
    for (int number = 0; number < 100; ++number) {
        rows.push_back({"~/Library/" + std::to_string(number), "it is still there"});
    }
    render(page);
    expectFits();
    const auto* const bar = window.findChild<QScrollArea*>()->verticalScrollBar();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_GT(bar->maximum(), 3000);
    EXPECT_EQ(window.height(), 596);
}

TEST_F(Names, TheScrollBarMovesNothingToTheSide) {
    render(test::finishedPage());
    const int before = seen<TextLabel>("Not removed")->width();
    Page page = test::finishedPage();
    for (int number = 0; number < 50; ++number) {
        std::get<FinishedContent>(page.content).problems->rows.push_back({"~/x", "why"});
    }
    render(page);
    EXPECT_EQ(seen<TextLabel>("Not removed")->width(), before);
}

} // namespace
} // namespace kelmar
