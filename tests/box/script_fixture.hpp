#pragma once

#include "tests/box/uninstall_fixture.hpp"
#include "tests/support/background_program.hpp"

#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <unistd.h>

namespace kelmar::test {

/// The administrator's script as root runs it on a Mac: on the real paths, for the user of the box.
class ScriptOnAPretendMac : public UninstallOnAPretendMac {
protected:
    static constexpr uid_t somebodyElse = 502;

    void SetUp() override {
        UninstallOnAPretendMac::SetUp();
        if (IsSkipped()) {
            return;
        }
        box->tree().file(box->outside(status));
        std::filesystem::permissions(box->outside(status), std::filesystem::perms(0600));
        std::filesystem::permissions(box->outside(place), std::filesystem::perms(0700));
        box->chownToUser(place);
    }

    /// The script with the status file and these arguments, started as sudo would.
    [[nodiscard]] Program script(std::vector<std::string> arguments) const {
        Program program;
        program.path = "/bin/bash";
        program.root = box->outside("");
        program.arguments = {"/box/bin/uninstall-as-admin.sh", "--status", status};
        program.arguments.insert(program.arguments.end(), arguments.begin(), arguments.end());
        program.environment["SUDO_UID"] = std::to_string(Box::user);
        return program;
    }

    /// Runs it and expects success without output. Returns the status lines.
    [[nodiscard]] Lines run(std::vector<std::string> arguments) const {
        const ProgramEnd end = script(std::move(arguments)).run();
        EXPECT_EQ(end.status, 0);
        EXPECT_EQ(end.output + end.error, "");
        return linesOfFile(box->outside(status));
    }

    /// A program at `path` of the box with the process name `name`, run by `user`.
    [[nodiscard]] std::unique_ptr<BackgroundProgram>
    startAs(const std::string& name, const std::string& path, uid_t user) const {
        box->tree().folder(box->outside(std::filesystem::path(path).parent_path()));
        std::filesystem::copy_file("/bin/sleep", box->outside(path),
                                   std::filesystem::copy_options::overwrite_existing);
        const std::string number = std::to_string(user);
        auto program = std::make_unique<BackgroundProgram>(
            "/usr/sbin/chroot", Lines{"--userspec=" + number + ":" + number, box->outside(""),
                                      "/bin/bash", "-c", R"(exec -a "$0" "$1" 600)", name, path});
        while (executable(*program) != box->outside(path)) {
            std::this_thread::yield();
        }
        return program;
    }

    [[nodiscard]] static bool isRunning(const BackgroundProgram& program) {
        return !executable(program).empty();
    }

    void giveToSomebodyElse(const std::string& path) const {
        ASSERT_EQ(::lchown(box->outside(path).c_str(), somebodyElse, somebodyElse), 0) << path;
    }

    std::string place = "/box/tmp/run";
    std::string status = place + "/status";

private:
    static std::string executable(const BackgroundProgram& program) {
        std::error_code ended;
        return std::filesystem::read_symlink("/proc/" + std::to_string(program.process()) + "/exe",
                                             ended);
    }
};

} // namespace kelmar::test
