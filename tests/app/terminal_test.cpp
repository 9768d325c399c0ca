#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

namespace kelmar {
namespace {

/// What a program writes on a terminal, its line ends as the terminal makes them.
std::string onATerminal(test::Program program) {
    int keyboard = -1;
    int screen = -1;
    if (::openpty(&keyboard, &screen, nullptr, nullptr, nullptr) != 0) {
        return "no terminal";
    }
    program.inChild = [screen] { ::dup2(screen, STDOUT_FILENO); };
    EXPECT_EQ(program.run().status, 0);
    ::close(screen);
    std::string all;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = ::read(keyboard, buffer.data(), buffer.size())) > 0;) {
        all.append(buffer.data(), static_cast<std::size_t>(count));
    }
    ::close(keyboard);
    return all;
}

class Terminal : public testing::Test {
protected:
    [[nodiscard]] test::Program run(const std::vector<std::string>& arguments) const {
        return test::uninstaller(arguments, folder / "t");
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

const std::string title = "\x1b]0;owned\x07"; // sets the title of a terminal
const std::string forged = "x\nKelmar isn't on this Mac.";
// Byte by byte: as text it would turn the lines of this source around as well.
const std::string rightToLeftOverride{'\xE2', '\x80', '\xAE'};
const std::string turned = rightToLeftOverride + "txt.exe"; // reads from right to left
const std::string c1 = "\xC2\x9B"
                       "31m"; // an escape sequence in one character

TEST_F(Terminal, IsNotWrittenToByTheNamesOfFiles) {
    tree.dataFolder(Scope::me, "Store", 10);
    for (const std::string& name : {title, forged, turned, c1}) {
        tree.otherItem(Scope::me, name);
    }
    const std::string listing = onATerminal(run({"--scan"}));
    EXPECT_NE(listing.find("␛]0;owned␇"), std::string::npos) << listing;
    EXPECT_NE(listing.find("x␊Kelmar isn't on this Mac."), std::string::npos) << listing;
    EXPECT_EQ(listing.find('\x1b'), std::string::npos);
    EXPECT_EQ(listing.find("\nKelmar isn't"), std::string::npos);
    EXPECT_EQ(listing.find(rightToLeftOverride), std::string::npos);
    EXPECT_EQ(listing.find("\xC2\x9B"), std::string::npos);
}

TEST_F(Terminal, NorByTheVersionOrByWhatARunKeeps) {
    tree.app(Scope::me, "4" + title).dataFolder(Scope::me, "Store", 10);
    tree.otherItem(Scope::me, title);
    EXPECT_EQ(onATerminal(run({"--scan"})).find('\x1b'), std::string::npos);
    const std::string output = onATerminal(run({"--uninstall", "--delete-data"}));
    EXPECT_NE(output.find("it still holds ␛]0;owned␇."), std::string::npos) << output;
    EXPECT_EQ(output.find('\x1b'), std::string::npos);
}

TEST_F(Terminal, ButAFileOrAPipeGetsNamesAsTheyAre) {
    tree.dataFolder(Scope::me, "Store", 10).otherItem(Scope::me, title + turned);
    EXPECT_NE(run({"--scan"}).run().output.find(title + turned), std::string::npos);
}

TEST_F(Terminal, ShowsTheUsageAsItIs) {
    EXPECT_NE(onATerminal(run({"--help"})).find("\r\n  --scan "), std::string::npos);
}

} // namespace
} // namespace kelmar
