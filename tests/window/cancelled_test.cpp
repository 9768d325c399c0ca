#include "tests/accessibility/announcement_recorder.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/window/pretend_mac_fixture.hpp"

#include <algorithm>

namespace kelmar {
namespace {

using test::WindowOnAPretendMac;

/// How often the text of this label was announced, after whatever else.
int timesSaid(const test::AnnouncementRecorder& recorder, const std::string& label) {
    const std::string text = label.substr(std::string("label: ").size());
    const std::vector<std::string>& said = recorder.announcements();
    return static_cast<int>(
        std::count_if(said.begin(), said.end(),
                      [&text](const std::string& each) { return each.ends_with(text); }));
}

TEST_F(WindowOnAPretendMac, GoesBackToTheChoiceWhenNobodyGivesThePassword) {
    installForBoth();
    box->answerPasswordWith("exit 1\n");
    const auto before = test::contents(box->outside("/Users"));
    open();
    ASSERT_TRUE(shows("push button: Uninstall"));
    click("push button", "Choose folders");
    click("check box", "CDN");
    ASSERT_TRUE(shows("check box: CDN"));
    const std::string size = sizeOf({box->outside("/Users/ann/Kelmar/Store")});
    ASSERT_TRUE(shows("label: Delete Kelmar data, " + size));
    const std::string notice =
        "label: Nothing was removed: removing Kelmar needs an administrator's password. Kelmar was "
        "closed; open it again from Applications if you still need it.";
    const test::AnnouncementRecorder recorder;
    for (int round = 1; round <= 2; ++round) {
        click("push button", "Uninstall");
        click("push button", "Uninstall and Delete Data");
        ASSERT_TRUE(shows(notice));
        EXPECT_TRUE(shows("heading: Uninstall Kelmar"));
        EXPECT_TRUE(shows("check box: Store (on)"));
        EXPECT_TRUE(shows("check box: CDN"));
        EXPECT_TRUE(shows("label: Delete Kelmar data, " + size));
        EXPECT_EQ(test::contents(box->outside("/Users")), before);
        const Lines lines = page();
        ASSERT_GT(lines.size(), 3U);
        EXPECT_EQ(lines[2], notice) << "it comes before what was found";
        EXPECT_EQ(lines[3], "heading: Found on this Mac");
        EXPECT_TRUE(eventually([&] { return timesSaid(recorder, notice) >= round; }));
        EXPECT_EQ(timesSaid(recorder, notice), round) << "the notice is said after each attempt";
    }
    screen->press("Escape");
    expectEnd();
}

} // namespace
} // namespace kelmar
