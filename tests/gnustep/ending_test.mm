#include "discovery/scanner.hpp"
#include "tests/gnustep/harness/application_fixture.hpp"
#include "tests/gnustep/harness/input.hpp"

namespace kelmar {
namespace {

class Ending : public test::Application {
protected:
    void launchAndFind(const UninstallerModel::Sources& sources) {
        test::MacTree(folder.path()).everything();
        launch(sources);
        ASSERT_TRUE(waitFor("Found on this Mac"));
    }

    void expectAllowed() {
        EXPECT_EQ([delegate applicationShouldTerminate:NSApp], NSTerminateNow);
        EXPECT_TRUE([delegate windowShouldClose:window()]);
    }
};

TEST_F(Ending, IsAllowedWhileItLooks) {
    UninstallerModel::Sources sources;
    sources.scan = [gate = gate](const KelmarPaths& paths) {
        gate->wait();
        return Scanner::scan(paths);
    };
    launch(sources);
    expectAllowed();
}

TEST_F(Ending, IsAllowedWhileFoldersAreBeingMeasured) {
    launchAndFind(slowSizes());
    expectAllowed();
    [window() performClose:nil];
    EXPECT_FALSE([window() isVisible]);
}

TEST_F(Ending, IsAllowedUnderTheQuestion) {
    launchAndFind({});
    click("Uninstall");
    ASSERT_TRUE(test::eventually([this] { return question() != nil; }));
    expectAllowed();
    EXPECT_FALSE([[question() window] preventsApplicationTerminationWhenModal]);
}

TEST_F(Ending, IsAllowedAfterTheQuestionWasCancelled) {
    launchAndFind(slowRun());
    click("Uninstall");
    ASSERT_TRUE(test::eventually([this] { return question() != nil; }));
    answerWith("Cancel");
    expectAllowed();
    [window() performClose:nil];
    EXPECT_FALSE([window() isVisible]);
}

TEST_F(Ending, IsRefusedAfterTheQuestionWasAnswered) {
    launchAndFind(slowRun());
    click("Uninstall");
    ASSERT_TRUE(test::eventually([this] { return question() != nil; }));
    answerWith("Uninstall and Delete Data");
    ASSERT_TRUE(waitFor("Uninstalling Kelmar…"));
    EXPECT_EQ([delegate applicationShouldTerminate:NSApp], NSTerminateCancel);
    [window() performClose:nil];
    test::settle();
    EXPECT_TRUE([window() isVisible]);
    gate->open = true;
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    expectAllowed();
    [window() performClose:nil];
    EXPECT_FALSE([window() isVisible]);
}

TEST_F(Ending, IsRefusedDuringARun) {
    launchAndFind(slowRun());
    [delegate model].setDeleteAllData(false);
    click("Uninstall");
    ASSERT_TRUE(waitFor("Uninstalling Kelmar…"));
    EXPECT_EQ([delegate applicationShouldTerminate:NSApp], NSTerminateCancel);
    EXPECT_FALSE([delegate windowShouldClose:window()]);
    [window() performClose:nil];
    test::settle();
    EXPECT_TRUE([window() isVisible]);
    [NSApp terminate:nil]; // would end this test
    test::settle();
    EXPECT_TRUE([window() isVisible]);
    [delegate view].perform(Action::quit);
    gate->open = true;
    ASSERT_TRUE(waitFor("Kelmar has been removed"));
    expectAllowed();
}

} // namespace
} // namespace kelmar
