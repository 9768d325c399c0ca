#pragma once

#include "tests/box/box.hpp"
#include "tests/support/lines.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace kelmar::test {

/// The built program on a pretend Mac, started by its user.
class UninstallOnAPretendMac : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    void SetUp() override {
        if (const auto reason = Box::skipReason()) {
            GTEST_SKIP() << *reason;
        }
        box = std::make_unique<Box>();
        box->answerPasswordWith(std::string("echo '") + Box::password + "'\n");
    }

    /// Kelmar in both scopes, with everything that the system knows about it, and data in both
    /// roots.
    void installEverything() const {
        box->tree().everything();
        box->chownToUser("/Users/ann");
        box->chownToUser("/box/tmp");
        for (const char* const volume : {"/", "/Users/ann"}) {
            box->addReceipt("com.kelmar.pkg.app", volume);
            box->addReceipt("com.kelmar.pkg.backend", volume);
        }
        box->addService("com.kelmar.api", "/Library/LaunchAgents/com.kelmar.api.plist");
        box->addService("com.kelmar.worker",
                        "/Users/ann/Library/LaunchAgents/com.kelmar.worker.plist");
        box->addKeychainItem("Kelmar Safe Storage");
    }

    /// Only this user's installation; nothing needs an administrator.
    void installForMe() const {
        box->tree().app(Scope::me, "4.3").services(Scope::me).agents(Scope::me);
        box->chownToUser("/Users/ann");
    }

    [[nodiscard]] ProgramEnd uninstall(const std::string& data) const {
        return box->uninstaller({"--uninstall", data}).run();
    }

    /// The calls of the fake tools, except those of scans, which change nothing.
    [[nodiscard]] Lines commands() const {
        Lines lines = box->calls();
        lines.erase(std::remove_if(lines.begin(), lines.end(),
                                   [](const std::string& line) {
                                       return line.find("<find-generic-password>") !=
                                                  std::string::npos ||
                                              line.find("<--pkg-info>") != std::string::npos ||
                                              line.find("<print>") != std::string::npos;
                                   }),
                    lines.end());
        return lines;
    }

    [[nodiscard]] bool isThere(const std::string& path) const {
        return std::filesystem::exists(std::filesystem::symlink_status(box->outside(path)));
    }

    /// Everything of the product that is on the disk at its fixed places.
    [[nodiscard]] Lines leftOnTheDisk() const {
        Lines left;
        for (const char* const path :
             {"/Applications/Kelmar.app", "/Library/Kelmar",
              "/Library/LaunchAgents/com.kelmar.api.plist",
              "/Library/LaunchAgents/com.kelmar.worker.plist", "/Users/ann/Applications/Kelmar.app",
              "/Users/ann/Library/Kelmar", "/Users/ann/Library/LaunchAgents/com.kelmar.api.plist",
              "/Users/ann/Library/LaunchAgents/com.kelmar.worker.plist",
              "/Users/ann/Library/Logs/Kelmar",
              "/Users/ann/Library/Preferences/com.quobrintal.app.plist",
              "/Users/ann/Library/Caches/com.quobrintal.app", "/Users/ann/Kelmar/Database",
              "/Users/ann/Kelmar/Store", "/Users/ann/Kelmar/notes.txt", "/Users/Shared/@Kelmar/CDN",
              "/Users/Shared/@Kelmar/Staging", "/box/tmp/Kelmar"}) {
            if (isThere(path)) {
                left.emplace_back(path);
            }
        }
        return left;
    }

    std::unique_ptr<Box> box;
};

} // namespace kelmar::test
