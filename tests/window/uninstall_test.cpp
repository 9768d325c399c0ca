#include "tests/accessibility/announcement_recorder.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/window/window_fixture.hpp"

#include <algorithm>
#include <filesystem>

namespace kelmar {
namespace {

using test::Window;

/// From the first look to the last, as two people would do it: one has no mouse, the other uses
/// nothing else.
class WholeUninstall : public Window {
protected:
    void SetUp() override {
        Window::SetUp();
        if (!IsSkipped()) {
            mac->everything();
        }
    }

    [[nodiscard]] std::string inHome(const std::string& name) const {
        return mac->paths().dataRoot(Scope::me) + "/" + name;
    }

    [[nodiscard]] std::string shared(const std::string& name) const {
        return mac->paths().dataRoot(Scope::allUsers) + "/" + name;
    }

    [[nodiscard]] static bool isThere(const std::string& path) {
        return std::filesystem::exists(std::filesystem::symlink_status(path));
    }

    /// On its label, which is not there for screen readers.
    void clickBesideTheSwitch() const {
        constexpr int indent = 60;
        const int y = window().find("check box", "Delete Kelmar data").place().centre().y;
        screen->click({onScreen().place.x + indent, y});
    }

    void expectTheProductGone() const {
        for (const Scope scope : {Scope::me, Scope::allUsers}) {
            EXPECT_FALSE(isThere(mac->paths().app(scope)));
            EXPECT_FALSE(isThere(mac->paths().services(scope)));
            for (const std::string& agent : mac->paths().agents(scope)) {
                EXPECT_FALSE(isThere(agent));
            }
        }
        EXPECT_FALSE(isThere(mac->paths().home + "/Library/Logs/Kelmar"));
        EXPECT_FALSE(isThere(mac->paths().temporaryDirectory + "/Kelmar"));
    }
};

TEST_F(WholeUninstall, WithTheKeyboardAlone) {
    const std::string size = sizeOf({inHome("Database"), inHome("Store"), shared("CDN"),
                                     shared("CDN_remote"), shared("Models"), shared("Staging")});
    open();
    ASSERT_TRUE(shows("push button: Uninstall"));
    screen->press("Tab");
    EXPECT_TRUE(focusIsOn("check box: Delete Kelmar data"));
    screen->press("Tab");
    ASSERT_TRUE(focusIsOn("push button: Choose folders"));
    screen->press("space");
    ASSERT_TRUE(shows("push button: Hide folders"));
    for (const char* const next :
         {"check box: Database", "check box: Store", "check box: Export", "check box: Logs",
          "check box: CDN", "check box: CDN_remote", "check box: Models", "check box: Staging",
          "push button: Quit", "push button: Uninstall",
          "label: Asks for an administrator's password", "check box: Delete Kelmar data"}) {
        screen->press("Tab");
        ASSERT_TRUE(focusIsOn(next));
    }
    screen->press("space");
    ASSERT_TRUE(shows("check box: Delete Kelmar data"));
    screen->press("space");
    ASSERT_TRUE(shows("check box: Delete Kelmar data (on)"));
    for (const char* const next : {"push button: Hide folders", "check box: Database",
                                   "check box: Store", "check box: Export", "check box: Logs"}) {
        screen->press("Tab");
        ASSERT_TRUE(focusIsOn(next));
    }
    screen->press("space");
    screen->press("Shift+Tab");
    screen->press("space");
    ASSERT_TRUE(shows("check box: Export"));
    ASSERT_TRUE(shows("check box: Logs"));
    ASSERT_TRUE(shows("label: Delete Kelmar data, " + size));

    screen->press("Return");
    ASSERT_TRUE(shows("alert: Delete " + size + " of Kelmar data?"));
    EXPECT_TRUE(
        window().find("alert", "Delete " + size + " of Kelmar data?").is(test::Accessible::modal));
    EXPECT_TRUE(shows("label: Your cases, imported documents, exports and downloaded AI models "
                      "will be deleted for good. You can't undo this."));
    EXPECT_TRUE(focusIsOn("push button: Cancel"));
    const auto before = test::contents(root.path());
    screen->press("Return");
    ASSERT_TRUE(shows("push button: Uninstall")) << "not grey: the question is gone";
    EXPECT_EQ(test::contents(root.path()), before) << "a second Return deletes nothing";

    screen->press("Return");
    ASSERT_TRUE(focusIsOn("push button: Cancel"));
    screen->press("Tab");
    ASSERT_TRUE(focusIsOn("push button: Uninstall and Delete Data"));
    screen->press("Tab");
    ASSERT_TRUE(focusIsOn("push button: Cancel")) << "the question keeps the focus";
    screen->press("Shift+Tab");
    ASSERT_TRUE(focusIsOn("push button: Uninstall and Delete Data"));
    screen->press("space");
    EXPECT_TRUE(becomes({
        "heading: Kelmar has been removed",
        "label: You can install the latest version of Kelmar whenever you're ready.",
        "label: The Kelmar app and its background services are gone.",
        "label: Its settings and the permissions you gave it are removed.",
        "label: Deleted " + size + " of Kelmar data.",
        "label: Kept ~/Kelmar, which still holds Export, Logs, and notes.txt.",
        "push button: Details",
        "push button: Quit",
    }));
    expectTheProductGone();
    EXPECT_FALSE(isThere(inHome("Database")) || isThere(inHome("Store")) ||
                 isThere(shared("CDN")) || isThere(shared("Staging")));
    EXPECT_TRUE(isThere(inHome("Export/part-0")) && isThere(inHome("Logs/part-0")) &&
                isThere(inHome("notes.txt")));

    screen->press("Tab");
    ASSERT_TRUE(focusIsOn("push button: Details"));
    screen->press("space");
    ASSERT_TRUE(shows("text: Details"));
    screen->press("Tab");
    ASSERT_TRUE(focusIsOn("text: Details"));
    screen->press("Control+a");
    const std::string log = window().find("text", "Details").text();
    ASSERT_TRUE(eventually([&] { return window().find("text", "Details").selectedText() == log; }));
    EXPECT_NE(log.find("Removed ~/Kelmar/Store"), std::string::npos) << log;
    screen->press("Control+c");
    EXPECT_TRUE(eventually([&] { return screen->clipboard() == log; }));
    screen->press("Return");
    expectEnd();
}

TEST_F(WholeUninstall, WithTheMouseAloneAndTheDataKept) {
    const auto mine = test::snapshot(mac->paths().dataRoot(Scope::me));
    const auto forAll = test::snapshot(mac->paths().dataRoot(Scope::allUsers));
    open();
    ASSERT_TRUE(shows("push button: Uninstall"));
    click("check box", "Delete Kelmar data");
    ASSERT_TRUE(shows("check box: Delete Kelmar data"));
    EXPECT_TRUE(shows("label: Your data stays in ~/Kelmar. If you install Kelmar for your account "
                      "again, it picks up where you left off. The shared data stays in "
                      "/Users/Shared/@Kelmar. Kelmar now installs for one account at a time and "
                      "doesn't use that folder."));
    EXPECT_TRUE(shows("label: Delete Kelmar data, Empty"));
    clickBesideTheSwitch();
    ASSERT_TRUE(shows("check box: Delete Kelmar data (on)")) << "its label is part of a switch";
    clickBesideTheSwitch();
    ASSERT_TRUE(shows("check box: Delete Kelmar data"));
    click("push button", "Uninstall");
    EXPECT_TRUE(becomes({
        "heading: Kelmar has been removed",
        "label: You can install the latest version of Kelmar whenever you're ready.",
        "label: The Kelmar app and its background services are gone.",
        "label: Its settings and the permissions you gave it are removed.",
        "label: Kept your Kelmar data in ~/Kelmar.",
        "label: Kept your Kelmar data in /Users/Shared/@Kelmar.",
        "push button: Details",
        "push button: Quit",
    }));
    expectTheProductGone();
    EXPECT_EQ(test::snapshot(mac->paths().dataRoot(Scope::me)), mine);
    EXPECT_EQ(test::snapshot(mac->paths().dataRoot(Scope::allUsers)), forAll);
    click("push button", "Details");
    ASSERT_TRUE(shows("text: Details"));
    EXPECT_EQ(window().find("text", "Details").text().find("Deleting"), std::string::npos);
    click("push button", "Details");
    ASSERT_TRUE(eventually([this] { return !window().find("text", "Details"); }));
    click("push button", "Quit");
    expectEnd();
}

TEST_F(WholeUninstall, DeletesWhatAScreenReaderLeftTicked) {
    open();
    ASSERT_TRUE(shows("push button: Uninstall"));
    ASSERT_TRUE(window().find("push button", "Choose folders").press());
    ASSERT_TRUE(shows("check box: Logs (on)"));
    ASSERT_TRUE(window().find("check box", "Delete Kelmar data").press());
    ASSERT_TRUE(shows("check box: Delete Kelmar data"));
    ASSERT_TRUE(shows("check box: Logs")) << "the switch is for every folder";
    ASSERT_TRUE(window().find("check box", "Delete Kelmar data").press());
    ASSERT_TRUE(shows("check box: Staging (on)"));
    ASSERT_TRUE(window().find("check box", "Logs").press());
    ASSERT_TRUE(shows("check box: Logs"));
    const std::string size =
        sizeOf({inHome("Database"), inHome("Store"), inHome("Export"), shared("CDN"),
                shared("CDN_remote"), shared("Models"), shared("Staging")});
    ASSERT_TRUE(shows("label: Delete Kelmar data, " + size));
    ASSERT_TRUE(window().find("push button", "Uninstall").press());
    ASSERT_TRUE(shows("alert: Delete " + size + " of Kelmar data?"));
    ASSERT_TRUE(window().find("push button", "Uninstall and Delete Data").press());
    ASSERT_TRUE(shows("label: Kept ~/Kelmar, which still holds Logs and notes.txt."));
    EXPECT_TRUE(isThere(inHome("Logs/part-0")));
    EXPECT_FALSE(isThere(inHome("Store")));
    ASSERT_TRUE(window().find("push button", "Details").press());
    ASSERT_TRUE(shows("text: Details"));
    static_cast<void>(window().find("push button", "Quit").press()); // it may end before it answers
    expectEnd();
}

TEST_F(WholeUninstall, SaysEachPhaseAtOnceToPeopleWhoCannotSeeIt) {
    const test::AnnouncementRecorder recorder;
    open();
    ASSERT_TRUE(shows("push button: Uninstall"));
    const std::string size =
        sizeOf({inHome("Database"), inHome("Store"), inHome("Export"), inHome("Logs"),
                shared("CDN"), shared("CDN_remote"), shared("Models"), shared("Staging")});
    ASSERT_TRUE(shows("label: Delete Kelmar data, " + size));
    click("push button", "Uninstall");
    click("push button", "Uninstall and Delete Data");
    ASSERT_TRUE(shows("heading: Kelmar has been removed"));
    const std::string last = "notification: Kelmar has been removed. You can install the latest "
                             "version of Kelmar whenever you're ready.";
    const Lines& announcements = recorder.announcements();
    ASSERT_TRUE(eventually([&] { return !announcements.empty() && announcements.back() == last; }));
    // What is said while the window opens may be said before anybody listens.
    const auto question = std::find(announcements.begin(), announcements.end(),
                                    "alert: Delete " + size + " of Kelmar data?");
    ASSERT_NE(question, announcements.end());
    const Lines since(question + 1, announcements.end());
    EXPECT_EQ(since, (Lines{"notification: Uninstalling Kelmar… Deleting a lot of data can take a "
                            "few minutes.",
                            last}));
}

} // namespace
} // namespace kelmar
