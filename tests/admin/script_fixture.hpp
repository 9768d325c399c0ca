#pragma once

#include "tests/support/lines.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include <unistd.h>

namespace kelmar::test {

/// The administrator's script on a test root, with a sound status file.
class Script : public testing::Test {
protected:
    using Lines = std::vector<std::string>;
    /// Another user, whom every system has: nobody.
    static constexpr uid_t foreigner = 65534;

    explicit Script(TemporaryFolder::Storage storage = TemporaryFolder::Storage::disk)
        : folder(storage) {
        tree.file(status);
        std::filesystem::permissions(status, std::filesystem::perms(0600));
    }

    /// Runs the script with exactly these arguments.
    [[nodiscard]] static ProgramEnd runWith(const Lines& arguments) {
        return program(arguments).run();
    }

    /// The script, to be run. Whoever runs the tests by sudo is not the one who asks.
    [[nodiscard]] static Program program(const Lines& arguments,
                                         const std::string& script = KELMAR_SCRIPT) {
        Program program;
        program.path = "/bin/bash";
        program.arguments = {script};
        program.arguments.insert(program.arguments.end(), arguments.begin(), arguments.end());
        program.environment["SUDO_UID"] = std::nullopt;
        return program;
    }

    /// Runs it as the uninstaller would under the test root: it ends well and without a word.
    /// Returns the status lines.
    [[nodiscard]] Lines run(Lines arguments) const {
        arguments.insert(arguments.begin(), {"--status", status});
        arguments.insert(arguments.end(), {"--test-root", tree.paths().systemRoot});
        const ProgramEnd end = runWith(arguments);
        EXPECT_EQ(end.status, 0);
        EXPECT_EQ(end.output + end.error, "");
        return statusLines();
    }

    [[nodiscard]] Lines statusLines() const { return linesOfFile(status); }

    [[nodiscard]] std::string system(const std::string& rest) const {
        return tree.paths().systemRoot + rest;
    }

    [[nodiscard]] std::string home(const std::string& rest) const {
        return tree.paths().home + rest;
    }

    [[nodiscard]] std::string shared(const std::string& name) const {
        return tree.paths().dataRoot(Scope::allUsers) + "/" + name;
    }

    static void giveAway(const std::string& path) {
        ASSERT_EQ(::lchown(path.c_str(), foreigner, foreigner), 0) << path;
    }

    static bool isThere(const std::string& path) {
        return std::filesystem::exists(std::filesystem::symlink_status(path));
    }

    TemporaryFolder folder;
    MacTree tree{folder / "t"};
    std::string status = folder / "t/tmp/run 1/status";
};

} // namespace kelmar::test
