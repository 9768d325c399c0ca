#include "discovery/scanner.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Paths = std::vector<std::string>;

class Settings : public testing::Test {
protected:
    [[nodiscard]] Paths scanned() const { return Scanner::settings(tree.paths()); }

    [[nodiscard]] std::string library(const std::string& rest) const {
        return tree.paths().home + "/Library/" + rest;
    }

    [[nodiscard]] std::string temporary(const std::string& name) const {
        return tree.paths().temporaryDirectory + "/" + name;
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

TEST_F(Settings, ComeInTheirOrder) {
    tree.settings().temporaryFiles();
    const std::string identifier = "com.quobrintal.app";
    EXPECT_EQ(
        scanned(),
        (Paths{library("Application Support/Kelmar"), library("Application Support/Quobrintal"),
               library("Logs/Kelmar"), library("Preferences/" + identifier + ".plist"),
               library("Preferences/ByHost/" + identifier + ".0A1B2C3D.plist"),
               library("Saved Application State/" + identifier + ".savedState"),
               library("Caches/" + identifier), library("HTTPStorages/" + identifier),
               library("WebKit/" + identifier), temporary("Kelmar"), temporary("Kelmar_temp"),
               temporary("sd-soffice-diagram")}));
}

TEST_F(Settings, AreFoundByTheExactBeginningOfTheirNames) {
    for (const char* const name :
         {"com.quobrintal.app", "com.quobrintal.app.plist", "com.quobrintal.app.plist.lockfile",
          "com.quobrintal.application", "com.quobrintal.app-\xFF", "com.quobrintal.ap",
          "com.Quobrintal.app", ".com.quobrintal.app", "xcom.quobrintal.app"}) {
        tree.file(library(std::string("Caches/") + name));
    }
    EXPECT_EQ(scanned(), (Paths{library("Caches/com.quobrintal.app"),
                                library("Caches/com.quobrintal.app-\xFF"),
                                library("Caches/com.quobrintal.app.plist"),
                                library("Caches/com.quobrintal.app.plist.lockfile"),
                                library("Caches/com.quobrintal.application")}));
}

TEST_F(Settings, AFolderThatCannotBeListedContributesNothing) {
    tree.file(library("Preferences"), "no folder").link(library("Caches"), "Caches");
    tree.file(library("WebKit/com.quobrintal.app"));
    EXPECT_EQ(scanned(), Paths{library("WebKit/com.quobrintal.app")});
}

TEST_F(Settings, DanglingLinksCount) {
    tree.link(library("Logs/Kelmar"), "nowhere")
        .link(library("Caches/com.quobrintal.app"), "nowhere");
    EXPECT_EQ(scanned(), (Paths{library("Logs/Kelmar"), library("Caches/com.quobrintal.app")}));
}

TEST_F(Settings, OfOtherProductsAreLeftAlone) {
    tree.file(library("Application Support/Kelmar Pro/x")).file(library("Logs/Kelmar.log"));
    tree.file(temporary("Kelmar_other")).file(library("Preferences/com.other.plist"));
    EXPECT_EQ(scanned(), Paths{});
}

} // namespace
} // namespace kelmar
