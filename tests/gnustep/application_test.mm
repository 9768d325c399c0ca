#include "system/text/foundation_text_macos.hpp"
#include "tests/gnustep/harness/application_fixture.hpp"
#include "tests/gnustep/harness/dirty_region.hpp"
#include "tests/gnustep/harness/input.hpp"
#include "tests/gnustep/harness/screenshot.hpp"
#include "tests/gnustep/shims/activities.h"
#include "tests/support/snapshot.hpp"

#include <filesystem>
#include <optional>
#include <set>

namespace kelmar {
namespace {

class WholeRun : public test::Application {
protected:
    void SetUp() override { paths = test::MacTree(folder.path()).everything().paths(); }

    void launchAndFind(const UninstallerModel::Sources& sources = {}) {
        launch(sources);
        ASSERT_TRUE(waitFor("Found on this Mac"));
    }

    void askToUninstall() {
        click("Uninstall");
        ASSERT_TRUE(test::eventually([this] { return question() != nil; }));
    }

    using Files = std::set<std::string>;

    /// Everything below the test root that is no folder.
    [[nodiscard]] Files files() const {
        Files all;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
            if (entry.is_symlink() || !entry.is_directory()) {
                all.insert(entry.path().string().substr(folder.path().size()));
            }
        }
        return all;
    }

    std::optional<KelmarPaths> paths;
};

TEST_F(WholeRun, UninstallsAfterTheQuestion) {
    const Files before = files();
    EXPECT_GT(before.size(), 50U) << testing::PrintToString(before);
    launchAndFind();
    askToUninstall();
    test::saveScreenshot([[question() window] contentView], "question");
    EXPECT_EQ(files(), before) << "nothing is done before the answer";
    answerWith("Uninstall and Delete Data");
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    test::saveScreenshot(content(), "whole-run");
    EXPECT_EQ(question(), nil);
    EXPECT_EQ(files(), (Files{"/home/Kelmar/.DS_Store", "/home/Kelmar/notes.txt"}));
    EXPECT_TRUE(shows("Kept ~/Kelmar, which still holds notes.txt."));
}

TEST_F(WholeRun, KeepsTheMacAwakeAsLongAsItTakes) {
    launchAndFind();
    EXPECT_EQ(KelmarActivities().begun, 0);
    askToUninstall();
    answerWith("Uninstall and Delete Data");
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    EXPECT_EQ(KelmarActivities().begun, 1);
    EXPECT_EQ(KelmarActivities().underWay, 0);
}

TEST_F(WholeRun, LaysNoPanelOverTheQuestion) {
    launchAndFind();
    NSMenu* const menu = [[[NSApp mainMenu] itemAtIndex:0] submenu];
    [menu update];
    EXPECT_TRUE([[menu itemAtIndex:0] isEnabled]);
    askToUninstall();
    [menu update];
    EXPECT_FALSE([[menu itemAtIndex:0] isEnabled]) << "About";
    answerWith("Cancel");
    ASSERT_TRUE(test::eventually([this] { return question() == nil; }));
    [menu update];
    EXPECT_TRUE([[menu itemAtIndex:0] isEnabled]);
}

TEST_F(WholeRun, DoesNothingWhenTheQuestionIsCancelled) {
    launchAndFind();
    const auto before = test::snapshot(folder.path());
    askToUninstall();
    test::press("Return");
    ASSERT_TRUE(test::eventually([this] { return question() == nil; }));
    test::settle();
    EXPECT_TRUE(shows("Found on this Mac"));
    EXPECT_EQ(test::snapshot(folder.path()), before);
    askToUninstall();
    EXPECT_NE(question(), nil) << "it asks again";
}

TEST_F(WholeRun, TouchesTheViewsOnTheMainThreadOnly) {
    const test::DirtyRegion dirty;
    launchAndFind();
    askToUninstall();
    answerWith("Uninstall and Delete Data");
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    EXPECT_FALSE(NSIsEmptyRect(dirty.bounds()));
    EXPECT_EQ(dirty.fromOtherThreads(), 0);
}

TEST_F(WholeRun, LeavesTheRecordToBeReadAndCopied) {
    launchAndFind();
    askToUninstall();
    answerWith("Uninstall and Delete Data");
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    click("Details");
    ASSERT_TRUE(test::eventually([this] { return test::firstSeen<NSTextView>(content()) != nil; }));
    EXPECT_EQ(test::textOf(test::firstSeen<NSTextView>(content())),
              [delegate model].published().log.text());
    EXPECT_GT([delegate model].published().log.size(), 3U);
}

TEST_F(WholeRun, DeletesOnlyTheFolderThatIsChosen) {
    launchAndFind();
    click("Choose folders");
    ASSERT_TRUE(waitFor("Store"));
    for (NSButton* const box : test::allSeen<NSButton>(content())) {
        const std::string name = test::textOf(box);
        if (name == "Database" || name == "CDN" || name == "Logs" || name == "Exports") {
            test::click(box);
        }
    }
    test::settle();
    std::vector<std::string> kept;
    for (const DataFolder& each : [delegate model].published().inventory.dataFolders()) {
        if (![delegate model].isSelected(each)) {
            kept.push_back(each.path);
        }
    }
    ASSERT_FALSE(kept.empty());
    askToUninstall();
    answerWith("Uninstall and Delete Data");
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    EXPECT_FALSE(std::filesystem::exists(paths->dataRoot(Scope::me) + "/Store"));
    for (const std::string& path : kept) {
        EXPECT_TRUE(std::filesystem::exists(path)) << path;
    }
}

TEST_F(WholeRun, AsksNothingWhenNoDataIsToBeDeleted) {
    launchAndFind();
    test::click(test::firstSeen<NSSwitch>(content()));
    click("Uninstall");
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    EXPECT_TRUE(std::filesystem::exists(paths->dataRoot(Scope::me) + "/Store"));
}

TEST_F(WholeRun, StartsOneRunForADoubleClick) {
    std::atomic<int> runs{0};
    UninstallerModel::Sources sources;
    sources.administrator = [&runs](const KelmarPaths& where) {
        ++runs;
        return Uninstaller::usualRunner(where);
    };
    launchAndFind(sources);
    [delegate model].setDeleteAllData(false);
    test::doubleClick(test::seen<NSButton>(content(), "Uninstall"));
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    EXPECT_EQ(runs, 1);
}

TEST_F(WholeRun, DrawsManyChangesAtOnce) {
    launchAndFind();
    test::settle();
    const auto before = [delegate view].page();
    for (int times = 0; times < 1'001; ++times) {
        [delegate model].setDeleteAllData(times % 2 == 1);
    }
    EXPECT_NE([delegate view].page(), before);
    EXPECT_EQ([test::firstSeen<NSSwitch>(content()) state], NSControlStateValueOn)
        << "nothing is drawn before the run loop turns";
    test::settle();
    EXPECT_EQ([test::firstSeen<NSSwitch>(content()) state], NSControlStateValueOff);
}

TEST_F(WholeRun, ShowsSizesAsTheyArrive) {
    launchAndFind(slowSizes());
    EXPECT_TRUE(shows("Measuring…"));
    click("Choose folders");
    ASSERT_TRUE(waitFor("Store"));
    NSView* const row = [test::seen<NSButton>(content(), "Store") superview];
    NSTextField* size = nil;
    for (NSTextField* const label : test::allSeen<NSTextField>(row)) {
        size = test::textOf(label) == "Measuring…" ? label : size;
    }
    ASSERT_NE(size, nil);
    gate->open = true;
    EXPECT_TRUE(test::eventually([&] { return test::textOf(size) != "Measuring…"; }));
}

} // namespace
} // namespace kelmar
