#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <unistd.h>

namespace kelmar {
namespace {

namespace fs = std::filesystem;
using test::Program;
using test::ProgramEnd;
using test::TemporaryFolder;

/// Starts that don't come to a window. None of them needs a screen.
class WithoutAWindow : public testing::Test {
protected:
    [[nodiscard]] Program start(const std::vector<std::string>& arguments) const {
        Program program = test::uninstaller(arguments, root.path());
        for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            program.environment[name] = std::nullopt;
        }
        return program;
    }

    static void expectOneLine(const ProgramEnd& end, const std::string& line) {
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error, line + "\n");
    }

    /// The libraries that the dynamic loader brings in for the program, see ld.so(8).
    [[nodiscard]] std::string loadedBy(Program program) const {
        program.environment["LD_DEBUG"] = "files";
        program.environment["LD_DEBUG_OUTPUT"] = root / "loaded";
        EXPECT_FALSE(program.run().timedOut);
        std::string all;
        for (const fs::directory_entry& each : fs::directory_iterator(root.path())) {
            if (each.path().filename().native().starts_with("loaded")) {
                std::ifstream file(each.path());
                all.append(std::istreambuf_iterator<char>(file), {});
                fs::remove(each.path());
            }
        }
        return all;
    }

    TemporaryFolder root;
};

constexpr const char* noDisplay =
    "Kelmar Uninstaller finds no display to open its window on. Use --scan to list what Kelmar has "
    "here, or --help for all options.";

TEST_F(WithoutAWindow, SaysInOneLineThatThereIsNoDisplay) {
    expectOneLine(start({}).run(), noDisplay);
}

TEST_F(WithoutAWindow, SaysInOneLineThatTheDisplayCannotBeReached) {
    Program program = start({});
    program.environment["DISPLAY"] = ":47113";
    expectOneLine(program.run(), noDisplay);
}

TEST_F(WithoutAWindow, SaysInOneLineThatItsModuleIsMissing) {
    Program program = start({});
    const TemporaryFolder elsewhere;
    program.runAs(::getuid(), elsewhere / "bin");
    expectOneLine(program.run(),
                  "Kelmar Uninstaller can't open its window here: that takes kelmar-window.so "
                  "beside the program, and Qt 6. Use --scan to list what Kelmar has here, or "
                  "--help for all options.");
}

TEST_F(WithoutAWindow, SaysInOneLineThatItsModuleCannotBeLoaded) {
    Program program = start({});
    const TemporaryFolder elsewhere;
    program.runAs(::getuid(), elsewhere / "bin");
    std::ofstream(elsewhere / "bin/kelmar-window.so") << "no module";
    expectOneLine(program.run(), "Kelmar Uninstaller can't open its window here: " +
                                     (elsewhere / "bin/kelmar-window.so") +
                                     ": file too short. Use --scan to list what Kelmar has here, "
                                     "or --help for all options.");
}

TEST_F(WithoutAWindow, NoOptionOfTheToolkitIsOneOfTheProgram) {
    expectOneLine(start({"-platform", "offscreen"}).run(), noDisplay);
}

TEST_F(WithoutAWindow, TheCommandLineLoadsNothingOfTheToolkit) {
    EXPECT_NE(loadedBy(start({})).find("libQt6"), std::string::npos) << "the window does";
    for (const char* const option : {"--help", "--scan", "--uninstall"}) {
        const std::string loaded = loadedBy(start({option}));
        EXPECT_NE(loaded.find("libc.so"), std::string::npos);
        for (const char* const part : {"libQt6", "libX11", "libxcb", "kelmar-window"}) {
            EXPECT_EQ(loaded.find(part), std::string::npos) << option << " " << part;
        }
    }
}

} // namespace
} // namespace kelmar
