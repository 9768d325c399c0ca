#pragma once

#include "tests/admin/bsd_userland.hpp"
#include "tests/support/lines.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/snapshot.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <unistd.h>

namespace kelmar::test {

/// The administrator's script at work on the real paths, as root, with a Mac's tools only. Its user
/// is number 501, with the home folder /Users/ann and a temporary folder that is reached through a
/// link, as on every Mac.
class OnABsdUserland : public testing::Test {
protected:
    using Lines = std::vector<std::string>;
    static constexpr uid_t user = 501;
    static constexpr const char* temporary = "/var/folders/xy/T";
    static constexpr const char* status = "/var/folders/xy/T/run 1/status";

    void SetUp() override {
        if (const auto reason = BsdUserland::skipReason()) {
            GTEST_SKIP() << *reason;
        }
        userland = std::make_unique<BsdUserland>();
        std::filesystem::copy_file(KELMAR_SCRIPT, userland->outside(script));
        std::filesystem::create_directories(outside("/private/var"));
        tree()
            .link(outside("/var"), "private/var")
            .file(outside(status))
            .file(outside("/etc-like/secret"), "the system's\n");
        tree().folder(outside("/Users/ann"));
    }

    void TearDown() override {
        if (userland != nullptr) {
            EXPECT_EQ(userland->refusals(), Lines{}) << "a Mac's tools would not take this";
        }
    }

    [[nodiscard]] std::string outside(const std::string& path) const {
        return userland->outside(path);
    }

    [[nodiscard]] MacTree tree() const {
        return MacTree(KelmarPaths{outside(""), outside("/Users/ann"), outside(temporary), {}});
    }

    /// Hands the user's folders over to the user, with everything in them but what `kept` names.
    void giveHome(const Lines& kept = {}) const {
        for (const char* const top : {"/Users/ann", temporary}) {
            giveAway(top, kept);
        }
    }

    [[nodiscard]] ProgramEnd run(Lines arguments) const {
        arguments.insert(arguments.begin(), {script, "--status", status});
        return userland->program("/bin/bash", arguments).run();
    }

    [[nodiscard]] Lines statusLines() const { return linesOfFile(outside(status)); }

    /// Everything that the script could reach, without its status file.
    [[nodiscard]] std::map<std::string, std::string> everything() const {
        std::map<std::string, std::string> all;
        for (const char* const top :
             {"/Applications", "/Library", "/Users", "/private", "/etc-like"}) {
            for (const auto& [path, what] : contents(outside(top))) {
                all[top + path] = what;
            }
        }
        all.erase(std::string("/private") + status);
        return all;
    }

    /// `all` without these and what is below them.
    [[nodiscard]] static std::map<std::string, std::string>
    without(std::map<std::string, std::string> all, const Lines& gone) {
        for (const std::string& one : gone) {
            const auto erased = std::erase_if(
                all, [&one](const auto& entry) { return isAtOrBelow(entry.first, one); });
            EXPECT_GT(erased, 0U) << one << " was not there";
        }
        return all;
    }

    [[nodiscard]] static Lines removed(const Lines& paths) {
        Lines lines;
        for (const std::string& path : paths) {
            lines.push_back("DOING " + path);
            lines.push_back("OK " + path);
        }
        return lines;
    }

    [[nodiscard]] static bool isAtOrBelow(const std::string& path, const std::string& top) {
        return path == top || path.starts_with(top + "/");
    }

    void giveAway(const std::string& path, const Lines& kept) const {
        if (std::find(kept.begin(), kept.end(), path) != kept.end()) {
            return;
        }
        const std::string place = outside(path);
        ASSERT_EQ(::lchown(place.c_str(), user, user), 0) << path;
        if (!std::filesystem::is_directory(std::filesystem::symlink_status(place))) {
            return;
        }
        for (const auto& entry : std::filesystem::directory_iterator(place)) {
            giveAway(path + "/" + entry.path().filename().native(), kept);
        }
    }

    static constexpr const char* script = "/uninstall-as-admin.sh";
    std::unique_ptr<BsdUserland> userland;
};

} // namespace kelmar::test
