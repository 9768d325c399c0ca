#include "discovery/scanner.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/ui/qt/widgets.hpp"
#include "ui/qt/about_panel.hpp"
#include "ui/qt/app_delegate.hpp"
#include "ui/qt/check_box.hpp"
#include "ui/qt/page.hpp"
#include "ui/qt/push_button.hpp"
#include "ui/qt/text_label.hpp"
#include "ui/qt/toggle_switch.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QTest>
#include <atomic>
#include <filesystem>
#include <thread>

namespace kelmar {
namespace {

/// Stands for a step that takes as long as a test wants.
struct Gate {
    void wait() const {
        while (!open) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    std::atomic<bool> open{false};
};

class Application : public testing::Test {
protected:
    void launch(UninstallerModel::Sources sources = {}) {
        delegate =
            std::make_unique<AppDelegate>(test::pathsUnder(folder.path()), std::move(sources));
        delegate->applicationDidFinishLaunching();
    }

    void TearDown() override {
        // A run that still goes on holds the model: let it end.
        EXPECT_TRUE(QTest::qWaitFor([this] { return !delegate->model->isWorking(); }));
    }

    [[nodiscard]] PushButton* button(const QString& text) const {
        return test::seen<PushButton>(*delegate->window(), text);
    }

    [[nodiscard]] bool shows(const QString& text) const {
        return test::seen<TextLabel>(*delegate->window(), text) != nullptr;
    }

    [[nodiscard]] bool waitFor(const QString& text) const {
        return QTest::qWaitFor([this, &text] { return shows(text); }, 20'000);
    }

    /// The panel about the program, while it is to be seen.
    [[nodiscard]] static AboutPanel* about() {
        for (QWidget* const each : QApplication::topLevelWidgets()) {
            if (auto* const panel = dynamic_cast<AboutPanel*>(each);
                panel != nullptr && panel->isVisible()) {
                return panel;
            }
        }
        return nullptr;
    }

    void click(const QString& text) const {
        ASSERT_NE(button(text), nullptr) << text.toStdString();
        QTest::mouseClick(button(text), Qt::LeftButton);
    }

    /// Folders are measured once the gate is open.
    [[nodiscard]] UninstallerModel::Sources slow() const {
        UninstallerModel::Sources sources;
        sources.size = [gate = gate](const std::string& path) {
            gate->wait();
            return Scanner::size(path);
        };
        return sources;
    }

    test::TemporaryFolder folder;
    /// Shared with the thread that measures, which nobody waits for.
    std::shared_ptr<Gate> gate = std::make_shared<Gate>();
    std::unique_ptr<AppDelegate> delegate;
};

TEST_F(Application, OpensOneWindowOfItsSizeInTheMiddle) {
    launch();
    const MainWindow& window = *delegate->window();
    EXPECT_EQ(window.size(), QSize(600, 620));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_EQ(window.windowTitle(), "Kelmar Uninstaller");
    const QPoint middle = window.screen()->availableGeometry().center();
    EXPECT_LE((window.geometry().center() - middle).manhattanLength(), 4);
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(Application, SaysThatNothingIsHere) {
    launch();
    EXPECT_TRUE(shows("Looking for Kelmar on this Mac…"));
    EXPECT_TRUE(waitFor("Kelmar isn't on this Mac"));
}

TEST_F(Application, UninstallsAfterTheQuestion) {
    const KelmarPaths paths = test::MacTree(folder.path()).everything().paths();
    launch();
    ASSERT_TRUE(waitFor("Found on this Mac"));
    click("Uninstall");
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("Cancel") != nullptr; }));
    click("Cancel");
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("Cancel") == nullptr; }));
    EXPECT_TRUE(std::filesystem::exists(paths.app(Scope::me)));
    click("Uninstall");
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("Cancel") != nullptr; }));
    click("Uninstall and Delete Data");
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    EXPECT_FALSE(std::filesystem::exists(paths.app(Scope::me)));
    EXPECT_FALSE(std::filesystem::exists(paths.dataRoot(Scope::me) + "/Store"));
    EXPECT_TRUE(std::filesystem::exists(paths.dataRoot(Scope::me) + "/notes.txt"));
    EXPECT_TRUE(shows("Kept ~/Kelmar, which still holds notes.txt."));
}

TEST_F(Application, DeletesOnlyTheFolderThatIsChosen) {
    const KelmarPaths paths = test::MacTree(folder.path()).everything().paths();
    launch();
    ASSERT_TRUE(waitFor("Found on this Mac"));
    click("Choose folders");
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("Hide folders") != nullptr; }));
    for (CheckBox* const box : test::widgets<CheckBox>(*delegate->window())) {
        if (box->text() != "Store") {
            box->click();
        }
    }
    click("Uninstall");
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("Cancel") != nullptr; }));
    click("Uninstall and Delete Data");
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    EXPECT_FALSE(std::filesystem::exists(paths.dataRoot(Scope::me) + "/Store"));
    EXPECT_TRUE(std::filesystem::exists(paths.dataRoot(Scope::me) + "/Database"));
    EXPECT_TRUE(std::filesystem::exists(paths.dataRoot(Scope::allUsers) + "/CDN"));
}

TEST_F(Application, StartsOneRunForADoubleClick) {
    test::MacTree(folder.path()).app(Scope::me, "1");
    std::atomic<int> runs{0};
    UninstallerModel::Sources sources;
    sources.administrator = [&runs](const KelmarPaths& paths) {
        ++runs;
        return Uninstaller::usualRunner(paths);
    };
    launch(sources);
    ASSERT_TRUE(waitFor("Found on this Mac"));
    PushButton* const uninstall = button("Uninstall");
    QTest::mouseClick(uninstall, Qt::LeftButton);
    QTest::mouseClick(uninstall, Qt::LeftButton);
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    EXPECT_EQ(runs, 1);
}

TEST_F(Application, MayEndWheneverNoRunIsGoingOn) {
    test::MacTree(folder.path()).everything();
    launch(slow());
    EXPECT_TRUE(delegate->applicationShouldTerminate());
    EXPECT_TRUE(delegate->windowShouldClose());
    ASSERT_TRUE(waitFor("Found on this Mac"));
    EXPECT_TRUE(delegate->windowShouldClose()) << "also while folders are being measured";
    EXPECT_TRUE(delegate->window()->close());
    gate->open = true;
}

TEST_F(Application, RefusesToCloseDuringARun) {
    test::MacTree(folder.path()).app(Scope::me, "1");
    launch();
    ASSERT_TRUE(waitFor("Found on this Mac"));
    click("Uninstall");
    ASSERT_TRUE(delegate->model->isWorking());
    EXPECT_FALSE(delegate->applicationShouldTerminate());
    EXPECT_FALSE(delegate->window()->close());
    EXPECT_TRUE(delegate->window()->isVisible());
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    EXPECT_TRUE(delegate->window()->close());
}

TEST_F(Application, DrawsManyChangesAtOnce) {
    test::MacTree(folder.path()).everything();
    launch();
    ASSERT_TRUE(waitFor("Found on this Mac"));
    QTest::qWait(200);
    const std::size_t before = delegate->window()->page().changes();
    for (int times = 0; times < 1'000; ++times) {
        delegate->model->setDeleteAllData(times % 2 == 0);
    }
    QTest::qWait(50);
    EXPECT_LE(delegate->window()->page().changes() - before, 1U);
}

TEST_F(Application, OpensNoAboutOverTheQuestion) {
    test::MacTree(folder.path()).everything();
    launch();
    ASSERT_TRUE(waitFor("Found on this Mac"));
    QMenu& menu = *delegate->window()->menuBar()->actions().first()->menu();
    menu.actions().first()->trigger();
    ASSERT_TRUE(QTest::qWaitFor([] { return about() != nullptr; }));
    click("Uninstall");
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("Cancel") != nullptr; }));
    EXPECT_EQ(about(), nullptr) << "it would cover the question";
    menu.actions().first()->trigger();
    EXPECT_EQ(about(), nullptr);
    menu.popup(QPoint());
    EXPECT_FALSE(menu.actions().first()->isEnabled());
    menu.close();
    click("Cancel");
    ASSERT_TRUE(QTest::qWaitFor([this] { return button("Cancel") == nullptr; }));
    menu.actions().first()->trigger();
    EXPECT_NE(about(), nullptr);
}

TEST(About, HasRoomForItsWholeTitle) {
    QWidget parent;
    auto& panel = *new AboutPanel(&parent);
    panel.show();
    QFont bold = panel.font();
    bold.setBold(true);
    // A desktop's frame has a button, which is as wide as high, on one side of a title in its
    // middle.
    const QFontMetrics metrics(bold);
    EXPECT_GE(panel.width(), metrics.horizontalAdvance(panel.windowTitle()) + 4 * metrics.height());
}

} // namespace
} // namespace kelmar
