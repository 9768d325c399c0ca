#include "engine/uninstaller.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/transcript.hpp"
#include "tests/support/unremovable.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace kelmar {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using Failures = std::vector<Uninstaller::Failure>;

class Removal : public testing::Test {
protected:
    Removal() { engine.emit = transcript.emit(); }

    [[nodiscard]] std::string home(const std::string& rest) const {
        return tree.paths().home + rest;
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    Uninstaller engine{tree.paths(), {}, {}};
    test::Transcript transcript;
};

TEST_F(Removal, APathThatIsNotThereIsNoEvent) {
    engine.remove(home("/missing"));
    engine.remove(home("/missing/below"));
    EXPECT_EQ(transcript.lines, Lines{});
    EXPECT_EQ(engine.failures, Failures{});
}

TEST_F(Removal, AFolderGoesWithEverythingInIt) {
    tree.dataFolder(Scope::me, "Store", 5000).file(home("/Kelmar/Store/-rf/\n\xFF"));
    engine.remove(home("/Kelmar/Store"));
    EXPECT_EQ(transcript.lines,
              (Lines{"doing Removing ~/Kelmar/Store", "log Removed ~/Kelmar/Store"}));
    EXPECT_FALSE(fs::exists(home("/Kelmar/Store")));
}

TEST_F(Removal, ALinkGoesAndItsTargetStays) {
    tree.file(home("/target/file"))
        .link(home("/link"), "target")
        .link(home("/dangling"), "nowhere");
    engine.remove(home("/link"));
    engine.remove(home("/dangling"));
    EXPECT_EQ(transcript.lines, (Lines{"doing Removing ~/link", "log Removed ~/link",
                                       "doing Removing ~/dangling", "log Removed ~/dangling"}));
    EXPECT_TRUE(fs::exists(home("/target/file")));
}

TEST_F(Removal, WhatStaysIsAFailureWithTheFirstLineOfRmsWords) {
    tree.file(home("/Kelmar/Store/a/x")).file(home("/Kelmar/Store/b/y"));
    const test::Unremovable first(home("/Kelmar/Store/a/x"));
    const test::Unremovable second(home("/Kelmar/Store/b/y"));
    if (!first.works() || !second.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    engine.remove(home("/Kelmar/Store"));
    ASSERT_EQ(engine.failures.size(), 1U);
    EXPECT_EQ(engine.failures[0].path, home("/Kelmar/Store"))
        << "as it was given, not as it is shown";
    const std::string reason = engine.failures[0].reason;
    EXPECT_NE(reason.find("Operation not permitted"), std::string::npos) << reason;
    EXPECT_EQ(reason.find('\n'), std::string::npos) << reason;
    EXPECT_EQ(transcript.lines, (Lines{"doing Removing ~/Kelmar/Store",
                                       "log Could not remove ~/Kelmar/Store: " + reason}));
}

TEST_F(Removal, AnEmptyFolderGoes) {
    tree.folder(home("/Kelmar"));
    engine.removeIfEmpty(home("/Kelmar"));
    EXPECT_EQ(transcript.lines, (Lines{"doing Removing ~/Kelmar", "log Removed ~/Kelmar"}));
}

TEST_F(Removal, AFolderOfIgnorableFilesGoes) {
    tree.otherItem(Scope::me, ".DS_Store").otherItem(Scope::me, ".localized");
    engine.removeIfEmpty(home("/Kelmar"));
    EXPECT_EQ(transcript.lines, (Lines{"doing Removing ~/Kelmar", "log Removed ~/Kelmar"}));
    EXPECT_FALSE(fs::exists(home("/Kelmar")));
}

TEST_F(Removal, KeepsAFolderThatStillHoldsOtherItems) {
    tree.otherItem(Scope::me, "b").otherItem(Scope::me, "a").otherItem(Scope::me, ".DS_Store");
    engine.removeIfEmpty(home("/Kelmar"));
    EXPECT_EQ(transcript.lines, Lines{"log ~/Kelmar: it still holds a, b."});
    EXPECT_EQ(engine.failures, Failures{});
    EXPECT_TRUE(fs::exists(home("/Kelmar/.DS_Store")));
}

TEST_F(Removal, WhatIsNoFolderIsLeftAlone) {
    tree.file(home("/Kelmar"));
    engine.removeIfEmpty(home("/Kelmar"));
    engine.removeIfEmpty(home("/missing"));
    EXPECT_EQ(transcript.lines, Lines{});
    EXPECT_TRUE(fs::exists(home("/Kelmar")));
}

TEST_F(Removal, SettingsGoInTheirOrder) {
    tree.settings();
    Inventory inventory;
    inventory.settings = {home("/Library/Logs/Kelmar"), home("/Library/Caches/com.quobrintal.app")};
    Uninstaller other(tree.paths(), inventory, {});
    other.emit = transcript.emit();
    other.removeSettings();
    EXPECT_EQ(transcript.lines,
              (Lines{"doing Removing ~/Library/Logs/Kelmar", "log Removed ~/Library/Logs/Kelmar",
                     "doing Removing ~/Library/Caches/com.quobrintal.app",
                     "log Removed ~/Library/Caches/com.quobrintal.app"}));
}

TEST_F(Removal, WhatIsSavedInAnEmptyFolderAtTheLastMomentStays) {
    tree.folder(home("/Kelmar"));
    engine.emit = [this, tell = transcript.emit()](const Uninstaller::Event& event) {
        tell(event);
        if (std::holds_alternative<Uninstaller::Doing>(event)) {
            tree.file(home("/Kelmar/thesis.txt"), "years of work").file(home("/Kelmar/.DS_Store"));
        }
    };
    engine.removeIfEmpty(home("/Kelmar"));
    EXPECT_EQ(transcript.lines,
              (Lines{"doing Removing ~/Kelmar", "log ~/Kelmar: it still holds thesis.txt."}));
    EXPECT_TRUE(fs::exists(home("/Kelmar/thesis.txt")));
    EXPECT_EQ(engine.failures, Failures{});
}

TEST_F(Removal, AnEmptyFolderBehindALinkStaysAndTheLinkGoes) {
    tree.folder(home("/elsewhere")).link(home("/Kelmar"), "elsewhere");
    engine.removeIfEmpty(home("/Kelmar"));
    EXPECT_EQ(transcript.lines, (Lines{"doing Removing ~/Kelmar", "log Removed ~/Kelmar"}));
    EXPECT_FALSE(fs::is_symlink(home("/Kelmar")));
    EXPECT_TRUE(fs::exists(home("/elsewhere")));
}

TEST_F(Removal, AnEmptyFolderThatCannotGoIsAFailureInTheSystemsWords) {
    tree.folder(home("/Kelmar"));
    const test::Unremovable locked(home("/Kelmar"));
    if (!locked.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    engine.removeIfEmpty(home("/Kelmar"));
    EXPECT_EQ(transcript.lines, (Lines{"doing Removing ~/Kelmar",
                                       "log Could not remove ~/Kelmar: Operation not permitted"}));
    EXPECT_EQ(engine.failures, (Failures{{home("/Kelmar"), "Operation not permitted"}}));
}

} // namespace
} // namespace kelmar
