#include "tests/ui/qt/painted_texts.hpp"
#include "tests/ui/qt/widgets.hpp"
#include "tests/ui/recorded_actions.hpp"
#include "tests/ui/samples.hpp"
#include "ui/menu.hpp"
#include "ui/qt/log_view.hpp"
#include "ui/qt/main_window.hpp"
#include "ui/qt/page.hpp"
#include "ui/uninstaller_view.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QScrollArea>
#include <set>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Published = UninstallerModel::Published;

/// Every text that a page shows, as the page has it.
class TextsOf {
public:
    explicit TextsOf(const Page& page) {
        add({page.header.title, page.header.subtitle});
        std::visit([this](const auto& content) { of(content); }, page.content);
        for (const FooterNote& note : page.footer.notes) {
            add({note.text});
        }
        if (page.footer.busy) {
            add({page.footer.busy->text});
        }
        of(page.footer.buttons);
        if (page.confirmation) {
            add({page.confirmation->title, page.confirmation->message});
            of(page.confirmation->buttons);
        }
    }

    std::set<std::string> texts;

private:
    void add(const std::set<std::string>& more) {
        texts.insert(more.begin(), more.end());
        texts.erase("");
    }

    void of(const std::vector<Button>& buttons) {
        for (const Button& button : buttons) {
            add({button.text});
        }
    }

    void of(const ScanningContent& content) { add({content.busy.text}); }

    void of(const NothingFoundContent& content) { add({content.text}); }

    void of(const ReadyContent& content) {
        if (content.notice) {
            add({content.notice->text});
        }
        add({content.found.title.text});
        for (const FoundRow& row : content.found.rows) {
            add({row.title, row.detail});
        }
        if (content.data) {
            of(*content.data);
        }
    }

    void of(const DataSection& data) {
        add({data.title.text, data.label, data.total.text(), data.line, data.folders.text});
        for (const FolderList& list : data.lists) {
            add({list.heading, list.otherItems.value_or("")});
            for (const FolderRow& row : list.rows) {
                add({row.name, row.summary, row.size.text()});
            }
        }
    }

    void of(const WorkingContent& content) {
        for (const ProgressRow& row : content.stages) {
            add({row.title});
        }
        add({content.detail, content.details.toggle.text});
    }

    void of(const FinishedContent& content) {
        for (const SummaryRow& row : content.summary) {
            add({row.text});
        }
        if (content.problems) {
            add({content.problems->title.text});
            for (const ProblemRow& row : content.problems->rows) {
                add({row.path, row.reason});
            }
        }
        add({content.details.toggle.text});
    }
};

Page page(const Published& published, bool unfolded = false) {
    return UninstallerView::page(published, test::machine, unfolded, unfolded);
}

/// Everything that can be found, and chosen.
Published everything() {
    const KelmarPaths& paths = test::machine;
    Inventory inventory;
    inventory.installations = {test::installation(paths, Scope::allUsers),
                               test::installation(paths, Scope::me)};
    inventory.appRunning = true;
    inventory.loadedServices = {"com.kelmar.api"};
    inventory.dataRoots = {
        {Scope::me,
         paths.dataRoot(Scope::me),
         {{"Database", "Case databases", "/m/1", {}}, {"Export", "Exported files", "/m/2", {}}},
         {"notes.txt", "drafts"}},
        {Scope::allUsers,
         paths.dataRoot(Scope::allUsers),
         {{"CDN_remote", "Copy of the AI model source", "/a/1", {}},
          {"Staging", "Files waiting to be imported", "/a/2", {}}},
         {}}};
    Published published = test::readyWith(inventory);
    published.selectedData = {"/m/1", "/m/2", "/a/1"};
    published.sizes = {{"/m/1", 123'400'000}, {"/m/2", 41'000}, {"/a/1", 700'000}, {"/a/2", 0}};
    published.notice = "Nothing was removed: removing Kelmar needs an administrator's password. "
                       "Kelmar was closed; open it again from Applications if you still need it.";
    return published;
}

/// A page of every kind, with every text that the program has.
std::vector<Page> pages() {
    std::vector<Page> all;
    all.push_back(page(Published{}));
    all.push_back(page(test::readyWith({})));
    Published published = everything();
    all.push_back(page(published));
    all.push_back(page(published, true));
    published.confirmingDataDeletion = true;
    all.push_back(page(published, true));
    published.confirmingDataDeletion = false;
    published.selectedData.clear();
    published.sizes.clear();
    all.push_back(page(published, true));
    published.inventory.installations.clear();
    published.inventory.loadedServices.clear();
    all.push_back(page(published));
    published = everything();
    published.phase = UninstallerModel::Working{};
    using Row = UninstallerModel::StageRow;
    published.stages = {
        {Uninstaller::Stage::close, "Closing Kelmar and its background services", Row::State::done},
        {Uninstaller::Stage::administrator, "Removing files only an administrator can delete",
         Row::State::running},
        {Uninstaller::Stage::account,
         "Removing Kelmar's settings and permissions from your account", Row::State::pending},
        {Uninstaller::Stage::data, "Deleting your Kelmar data", Row::State::pending}};
    published.detail = "Waiting for an administrator's password";
    published.log = test::removedLines(3);
    all.push_back(page(published));
    all.push_back(page(published, true));
    published.removed = published.inventory;
    published.deletedData = {published.inventory.dataRoots[0].folders[0]};
    published.phase = UninstallerModel::Finished{};
    all.push_back(page(published));
    published.phase = UninstallerModel::Finished{
        {{"/Users/ada/Library/Application Support/Kelmar/Store/Documents/2026",
          "rm: /Users/ada/Library/Application Support/Kelmar/Store/Documents/2026: Operation not "
          "permitted"},
         {"/Users/ada/Kelmar", "it is still there"}}};
    all.push_back(page(published, true));
    return all;
}

/// What is wrong with the texts that a window paints.
class Findings {
public:
    Findings(MainWindow& window, const Page& page) : window_(window) {
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && !belongsToTheLog(*widget)) {
                look(*widget);
            }
        }
        std::set<std::string> wanted = TextsOf(page).texts;
        for (const Menu& menu : mainMenu()) {
            menus_ += inked(menu.title);
        }
        for (const std::string& text : wanted) {
            if (!painted_.contains(inked(text))) {
                found_.push_back("not painted: " + text);
            }
        }
        if (!painted_.contains(menus_)) {
            found_.emplace_back("the menu bar is not whole");
        }
    }

    [[nodiscard]] const std::vector<std::string>& all() const { return found_; }

private:
    static QString inked(const std::string& text) {
        return test::inked(QString::fromStdString(text));
    }

    static bool belongsToTheLog(const QWidget& widget) {
        for (const QWidget* each = &widget; each != nullptr; each = each->parentWidget()) {
            if (dynamic_cast<const LogView*>(each) != nullptr) {
                return true;
            }
        }
        return false;
    }

    void look(QWidget& widget) {
        const std::vector<test::PaintedText> texts = test::paintedTexts(widget);
        QString whole;
        QRectF place;
        for (const test::PaintedText& text : texts) {
            whole += test::inked(text.text);
            place |= text.place;
        }
        if (whole.isEmpty()) {
            return;
        }
        painted_.insert(whole);
        // As much as a letter's side bearing, which is no ink.
        const auto isCut = [](const QRectF& inside, const QRect& outside) {
            return !QRectF(outside).adjusted(-1, -1, 1, 1).contains(inside);
        };
        if (isCut(place, widget.rect())) {
            found_.push_back("cut by its own edge: " + whole.toStdString());
        }
        const QWidget* inside = &widget;
        while (inside != &window_) {
            const QWidget* const outside = inside->parentWidget();
            const bool scrolls = qobject_cast<QScrollArea*>(outside->parentWidget()) != nullptr;
            if (!scrolls && isCut(inside->geometry(), outside->rect())) {
                found_.push_back("cut by what is around it: " + whole.toStdString());
            } else if (scrolls && inside->width() > outside->width()) {
                found_.push_back("wider than what it scrolls in: " + whole.toStdString());
            }
            inside = outside;
        }
        if (!widget.isEnabledTo(&window_)) {
            return; // below the question
        }
        const QRectF seen = place & QRectF(widget.visibleRegion().boundingRect());
        const QRectF where = seen.translated(widget.mapTo(&window_, QPoint()));
        for (const QRectF& other : places_) {
            const QRectF both = where & other;
            if (both.width() > 1 && both.height() > 2) {
                found_.push_back("lies over another: " + whole.toStdString());
            }
        }
        places_.push_back(where);
    }

    const MainWindow& window_;
    std::set<QString> painted_;
    QString menus_;
    std::vector<QRectF> places_; ///< of the texts that are seen, in the window
    std::vector<std::string> found_;
};

/// The desktop's font in a size for as long as this lives.
class FontSize {
public:
    explicit FontSize(int points) {
        QFont font = before_;
        font.setPointSize(points);
        QApplication::setFont(font);
    }

    FontSize(const FontSize&) = delete;
    FontSize& operator=(const FontSize&) = delete;

    ~FontSize() { QApplication::setFont(before_); }

private:
    QFont before_ = QApplication::font();
};

class WholeTexts : public testing::TestWithParam<int> {};

TEST_P(WholeTexts, AreWhatEveryPageShows) {
    const FontSize size(GetParam());
    std::size_t number = 0;
    for (const Page& page : pages()) {
        test::RecordedActions actions;
        MainWindow window(
            test::recordInto(actions), [](MenuAction) {}, [] { return true; });
        window.show();
        window.page().render(page);
        for (int turn = 0; turn < 3; ++turn) {
            QApplication::processEvents();
        }
        const Findings findings(window, page);
        for (const std::string& finding : findings.all()) {
            ADD_FAILURE() << "page " << number << " at " << GetParam() << " points and scale "
                          << window.devicePixelRatioF() << ": " << finding;
        }
        ++number;
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, WholeTexts, testing::Range(8, 25),
                         [](const auto& points) { return std::to_string(points.param); });

} // namespace
} // namespace kelmar
