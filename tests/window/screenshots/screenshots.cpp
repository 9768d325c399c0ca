#include "tests/support/unremovable.hpp"
#include "tests/window/pretend_mac_fixture.hpp"
#include "tests/window/screenshots/save_screenshot.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

namespace kelmar {
namespace {

namespace fs = std::filesystem;

constexpr int usualPoints = 10;
constexpr int largePoints = 20;
constexpr const char* temporary = "/var/folders/q4/T";

/// The desktop that the window opens on.
enum class Desktop {
    light,
    dark,
};

/// Draws the window in every state that it has, as the built program shows it on a pretend Mac.
/// What can't be reached fails, as in a test.
class Screenshots : public test::WindowOnAPretendMac, public testing::WithParamInterface<Desktop> {
protected:
    /// Everything that the product can have, in amounts that people have.
    void installEverything() const {
        box->tree().everything();
        box->chownToUser("/Users/ann");
        useTheMacsTemporaryFolder();
        const std::string agents = "/Library/LaunchAgents/";
        box->addService("com.kelmar.api", agents + "com.kelmar.api.plist");
        box->addService("com.kelmar.worker", agents + "com.kelmar.worker.plist");
    }

    void openOnDesktop(const std::string& scale = "1", int points = usualPoints) {
        box->set("/box/config/kdeglobals", settings(points));
        test::Program program = onTheScreen(box->uninstaller({}));
        // The toolkit takes font and palette from the settings of this desktop.
        program.environment["XDG_CURRENT_DESKTOP"] = "KDE";
        program.environment["KDE_SESSION_VERSION"] = "5";
        program.environment["XDG_CONFIG_HOME"] = "/box/config";
        program.environment["QT_SCALE_FACTOR"] = scale;
        if (fs::exists(box->outside(temporary))) {
            program.environment["TMPDIR"] = temporary;
        }
        Window::open(program);
    }

    /// Keeps what the window shows as the screenshot of that name.
    void screenshot(const std::string& name) const { screenshot(name, onScreen()); }

    void screenshot(const std::string& name, const test::ScreenWindow& of) const {
        ::usleep(250'000); // the mouse has left, a spinner has turned
        const char* const folder = std::getenv("KELMAR_SCREENSHOTS");
        ASSERT_NE(folder, nullptr) << "KELMAR_SCREENSHOTS names the folder for the screenshots";
        const std::string desktop = GetParam() == Desktop::light ? "-light" : "-dark";
        ASSERT_TRUE(test::saveScreenshot(screen->name(), of,
                                         std::string(folder) + "/" + name + desktop + ".png"));
    }

    void waitForSizes() const {
        ASSERT_TRUE(shows("push button: Uninstall"));
        ASSERT_TRUE(eventually([this] {
            const Lines lines = page();
            return std::none_of(lines.begin(), lines.end(), [](const std::string& line) {
                return line.find("Measuring") != std::string::npos;
            });
        }));
    }

    void leave() const { screen->moveTo({test::Screen::width - 1, test::Screen::height - 1}); }

    void press(const std::string& role, const std::string& name) const {
        click(role, name);
        leave();
    }

    void uninstallWithData() const {
        press("push button", "Uninstall");
        ASSERT_TRUE(shows("push button: Uninstall and Delete Data"));
        press("push button", "Uninstall and Delete Data");
    }

private:
    /// Where a Mac has it, and not the box: what is removed there stands in the log.
    void useTheMacsTemporaryFolder() const {
        fs::create_directories(box->outside(temporary));
        for (const auto& entry : fs::directory_iterator(box->outside("/box/tmp"))) {
            fs::rename(entry.path(), box->outside(temporary) / entry.path().filename());
        }
        box->chownToUser(temporary);
    }

    static std::string settings(int points) {
        const std::string fonts = "[General]\nfont=Inter," + std::to_string(points) +
                                  ",-1,5,50,0,0,0,0,0\n" + "fixed=DejaVu Sans Mono," +
                                  std::to_string(points - 1) + ",-1,5,50,0,0,0,0,0\n";
        const auto colours = [](const std::string& set, const std::string& ground,
                                const std::string& text) {
            return "[Colors:" + set + "]\nBackgroundNormal=" + ground +
                   "\nForegroundNormal=" + text + "\n";
        };
        const std::string selection = colours("Selection", "45,125,210", "255,255,255");
        if (GetParam() == Desktop::light) {
            return fonts + selection + colours("Window", "240,240,241", "30,30,32") +
                   colours("View", "255,255,255", "30,30,32") +
                   colours("Button", "250,250,250", "30,30,32") +
                   colours("Tooltip", "250,250,250", "30,30,32");
        }
        return fonts + selection + colours("Window", "43,45,48", "238,239,240") +
               colours("View", "30,31,34", "238,239,240") +
               colours("Button", "58,60,64", "238,239,240") +
               colours("Tooltip", "58,60,64", "238,239,240");
    }
};

TEST_P(Screenshots, Scanning) {
    installEverything();
    block("/usr/sbin/pkgutil");
    openOnDesktop();
    ASSERT_TRUE(shows("label: Looking for Kelmar…"));
    screenshot("scanning");
}

TEST_P(Screenshots, NothingFound) {
    openOnDesktop();
    ASSERT_TRUE(shows("heading: Kelmar isn't on this Mac"));
    screenshot("nothing-found");
}

TEST_P(Screenshots, Measuring) {
    installEverything();
    block("/usr/bin/du");
    openOnDesktop();
    ASSERT_TRUE(shows("label: Delete Kelmar data, Measuring…"));
    screenshot("measuring");
    press("push button", "Uninstall");
    ASSERT_TRUE(shows("label: Delete your Kelmar data?"));
    screenshot("question-while-measuring");
}

TEST_P(Screenshots, FromTheChoiceToTheEnd) {
    installEverything();
    box->start("/Users/ann/Applications/Kelmar.app/Contents/MacOS/Kelmar");
    openOnDesktop();
    waitForSizes();
    screenshot("ready");
    press("push button", "Choose folders");
    ASSERT_TRUE(shows("check box: Store (on)"));
    screen->scrollDown(onScreen().place.centre(), 30);
    leave();
    press("check box", "Store");
    ASSERT_TRUE(shows("check box: Store"));
    screenshot("folders");
    press("push button", "Uninstall");
    ASSERT_TRUE(shows("push button: Uninstall and Delete Data"));
    screenshot("question");
    press("push button", "Uninstall and Delete Data");
    ASSERT_TRUE(shows("label: Waiting for an administrator's password"));
    screenshot("working");
    press("push button", "Details");
    ASSERT_TRUE(shows("text: Details"));
    screenshot("working-details");
    unblock();
    ASSERT_TRUE(shows("heading: Kelmar has been removed"));
    screenshot("finished-details");
    press("push button", "Details");
    screenshot("finished");
}

TEST_P(Screenshots, DataThatStays) {
    installEverything();
    openOnDesktop();
    waitForSizes();
    press("check box", "Delete Kelmar data");
    ASSERT_TRUE(shows("check box: Delete Kelmar data"));
    screenshot("keeping");
    unblock();
    press("push button", "Uninstall");
    ASSERT_TRUE(shows("heading: Kelmar has been removed"));
    screenshot("kept");
}

TEST_P(Screenshots, Cancelled) {
    installEverything();
    box->answerPasswordWith("exit 1\n");
    openOnDesktop();
    waitForSizes();
    uninstallWithData();
    ASSERT_TRUE(shows("push button: Choose folders"));
    screenshot("cancelled");
}

TEST_P(Screenshots, LeftOver) {
    installEverything();
    box->mountOver("/Users/ann/Library/Logs/Kelmar");
    box->mountOver("/Users/ann/Kelmar/Store");
    openOnDesktop();
    unblock();
    waitForSizes();
    uninstallWithData();
    ASSERT_TRUE(shows("heading: Kelmar wasn't completely removed"));
    screenshot("leftover");
}

TEST_P(Screenshots, ManyLeftOver) {
    installEverything();
    for (const char* const folder :
         {"/Users/ann/Library/Logs/Kelmar", "/Users/ann/Kelmar/Store", "/Users/ann/Kelmar/Export",
          "/Users/ann/Kelmar/Database", "/Users/ann/Kelmar/Logs", "/Users/Shared/@Kelmar/CDN",
          "/Users/Shared/@Kelmar/CDN_remote", "/Users/Shared/@Kelmar/Models",
          "/Users/Shared/@Kelmar/Staging", "/Users/ann/Applications/Kelmar.app/Contents/MacOS"}) {
        box->mountOver(folder);
    }
    openOnDesktop();
    unblock();
    waitForSizes();
    uninstallWithData();
    ASSERT_TRUE(shows("heading: Kelmar wasn't completely removed"));
    screen->scrollDown(onScreen().place.centre(), 4);
    leave();
    screenshot("leftover-many");
}

TEST_P(Screenshots, OnlyData) {
    box->tree()
        .dataFolder(Scope::me, "Store", 12'000'000)
        .dataFolder(Scope::me, "Database", 2'000'000);
    box->chownToUser("/Users/ann");
    openOnDesktop();
    waitForSizes();
    screenshot("data-only");
}

TEST_P(Screenshots, AnOpenMenu) {
    installEverything();
    openOnDesktop();
    waitForSizes();
    click("menu item", "Kelmar Uninstaller");
    ASSERT_TRUE(eventually([this] { return screen->windows().size() == 2; }));
    screen->press("Down");
    screenshot("menu");
}

TEST_P(Screenshots, About) {
    openOnDesktop();
    ASSERT_TRUE(shows("heading: Kelmar isn't on this Mac"));
    click("menu item", "Kelmar Uninstaller");
    ASSERT_TRUE(eventually([this] { return screen->windows().size() == 2; }));
    click("menu item", "About Kelmar Uninstaller");
    leave();
    test::ScreenWindow about;
    ASSERT_TRUE(eventually([&] {
        for (const test::ScreenWindow& each : screen->windows()) {
            if (each.title == "About Kelmar Uninstaller") {
                about = each;
            }
        }
        return about.id != 0;
    }));
    screenshot("about", about);
}

TEST_P(Screenshots, ATooltip) {
    installEverything();
    openOnDesktop();
    waitForSizes();
    const test::Accessible note = window().find("label", "Asks for an administrator's password");
    screen->moveTo(note.place().centre());
    ASSERT_TRUE(eventually([this] { return screen->windows().size() == 2; }));
    // It reaches beyond the window's lower edge.
    test::ScreenWindow both = onScreen();
    for (const test::ScreenWindow& each : screen->windows()) {
        const int bottom = each.place.y + each.place.height;
        both.place.height = std::max(both.place.height, bottom - both.place.y);
    }
    screenshot("tooltip", both);
}

TEST_P(Screenshots, InLargeLetters) {
    installEverything();
    box->start("/Users/ann/Applications/Kelmar.app/Contents/MacOS/Kelmar");
    openOnDesktop("1", largePoints);
    waitForSizes();
    screenshot("ready-20-points");
    screen->scrollDown(onScreen().place.centre(), 30);
    press("push button", "Choose folders");
    ASSERT_TRUE(shows("check box: Store (on)"));
    leave();
    screenshot("folders-20-points");
    press("push button", "Uninstall");
    ASSERT_TRUE(shows("push button: Uninstall and Delete Data"));
    screenshot("question-20-points");
    press("push button", "Uninstall and Delete Data");
    ASSERT_TRUE(shows("label: Waiting for an administrator's password"));
    screenshot("working-20-points");
    unblock();
    ASSERT_TRUE(shows("heading: Kelmar has been removed"));
    screenshot("finished-20-points");
}

TEST_P(Screenshots, AtTwiceTheSize) {
    installEverything();
    openOnDesktop("2");
    waitForSizes();
    screenshot("ready-2x");
}

TEST_P(Screenshots, TheAppIsGone) {
    box->tree().services(Scope::allUsers).agents(Scope::me).settings();
    box->chownToUser("/Users/ann");
    openOnDesktop();
    waitForSizes();
    screenshot("app-gone");
}

TEST_P(Screenshots, NamesOfAllKinds) {
    box->tree().app(Scope::me, "4.3").dataFolder(Scope::me, "Store", 1'000);
    for (const char* const name : {"תיקייה שלי", "مجلد", "🗂️ Fälle 👩‍⚖️",
                                   "a very long name that someone gave to a "
                                   "folder-without-any-blank-in-its-second-half",
                                   "<b>bold</b>", "line\nbreak"}) {
        box->tree().otherItem(Scope::me, name);
    }
    box->chownToUser("/Users/ann");
    openOnDesktop();
    press("push button", "Choose folders");
    ASSERT_TRUE(shows("check box: Store (on)"));
    screen->scrollDown(onScreen().place.centre(), 30);
    leave();
    screenshot("names");
}

TEST_P(Screenshots, TheKeyboardsFocus) {
    installEverything();
    openOnDesktop();
    waitForSizes();
    screen->press("Tab");
    ASSERT_TRUE(focusIsOn("check box: Delete Kelmar data"));
    screenshot("focus");
}

INSTANTIATE_TEST_SUITE_P(Desktops, Screenshots, testing::Values(Desktop::light, Desktop::dark),
                         [](const auto& desktop) {
                             return desktop.param == Desktop::light ? "light" : "dark";
                         });

} // namespace
} // namespace kelmar
