#include "tests/support/durations.hpp"
#include "tests/window/pretend_mac_fixture.hpp"

#include <filesystem>
#include <functional>
#include <map>

namespace kelmar {
namespace {

using test::WindowOnAPretendMac;

class EndsAtOnce : public WindowOnAPretendMac {
protected:
    using Way = std::function<void()>;

    void SetUp() override {
        WindowOnAPretendMac::SetUp();
        if (!IsSkipped()) {
            installForBoth();
        }
    }

    void expectEndBy(const Way& way, const std::string& atTheMoment) {
        const auto took = [&] {
            open();
            EXPECT_TRUE(shows(atTheMoment));
            EXPECT_TRUE(eventually([this] { return isBlocked(); }));
            way();
            return expectEnd();
        };
        EXPECT_LT(test::shortestOf(test::exitTimeout, took), test::exitTimeout);
    }

    const Way closeButton = [this] { screen->askToClose(onScreen()); };

    [[nodiscard]] Way key(const std::string& keys) const {
        return [this, keys] { screen->press(keys); };
    }
};

TEST_F(EndsAtOnce, WhileItIsStillLooking) {
    block("/usr/sbin/pkgutil");
    for (const auto& [name, way] : std::map<std::string, Way>{{"close button", closeButton},
                                                              {"Control+Q", key("Control+q")},
                                                              {"Return", key("Return")}}) {
        SCOPED_TRACE(name);
        expectEndBy(way, "label: Looking for Kelmar…");
    }
}

TEST_F(EndsAtOnce, WhileAFolderIsStillBeingMeasured) {
    block("/usr/bin/du");
    for (const auto& [name, way] : std::map<std::string, Way>{{"close button", closeButton},
                                                              {"Control+Q", key("Control+q")},
                                                              {"Escape", key("Escape")}}) {
        SCOPED_TRACE(name);
        expectEndBy(way, "label: Delete Kelmar data, Measuring…");
    }
}

TEST_F(EndsAtOnce, WhileTheQuestionIsOpen) {
    open();
    for (const char* const keys : {"Escape", "Return"}) {
        ASSERT_TRUE(shows("push button: Uninstall"));
        screen->press("Return");
        ASSERT_TRUE(focusIsOn("push button: Cancel"));
        screen->press(keys);
        ASSERT_TRUE(shows("push button: Uninstall")) << keys << " answers the question only";
    }
    screen->press("Return");
    ASSERT_TRUE(focusIsOn("push button: Cancel"));
    screen->askToClose(onScreen());
    expectEnd();
    EXPECT_TRUE(std::filesystem::exists(box->outside("/Users/ann/Kelmar/Store/part-0")));
}

TEST_F(EndsAtOnce, AsksAboutDataThatIsStillBeingMeasuredWithoutASize) {
    block("/usr/bin/du");
    open();
    ASSERT_TRUE(shows("label: Delete Kelmar data, Measuring…"));
    screen->press("Return");
    ASSERT_TRUE(shows("alert: Delete your Kelmar data?"));
    unblock();
    EXPECT_TRUE(shows("alert: Delete Empty of Kelmar data?")) << "a du without an answer";
    screen->press("Escape");
    ASSERT_TRUE(shows("push button: Uninstall"));
    screen->press("Escape");
    expectEnd();
}

} // namespace
} // namespace kelmar
