#pragma once

#include "discovery/kelmar_paths.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/private_mounts.hpp"
#include "tests/support/program.hpp"
#include "tests/support/sleeper.hpp"
#include "tests/support/temporary_folder.hpp"

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar::test {

/// A pretend Mac: this machine's file system with an overlay, in this process's mount namespace, so
/// that nothing outside sees the changes. At the paths of macOS's tools are fakes that log their
/// calls and answer from state in /box; an ordinary user has a home folder. The real executable
/// runs in it, on the real paths.
class Box {
public:
    /// Why this machine can't have a box; absent if it can.
    static std::optional<std::string> skipReason();

    static constexpr uid_t user = 501;

    Box();
    Box(const Box&) = delete;
    Box& operator=(const Box&) = delete;
    ~Box();

    /// The path by which this process reaches a path of the box.
    [[nodiscard]] std::string outside(const std::string& path) const { return root_ + path; }

    /// Builds product files at the box's real paths, owned by root; `chownToUser` gives a part to
    /// the user.
    [[nodiscard]] MacTree tree() const;
    void chownToUser(const std::string& path) const;

    /// If there is an `error`, forgetting the receipt fails and pkgutil prints the error.
    void addReceipt(const std::string& identifier, const std::string& volume,
                    const std::string& error = "") const;
    void addService(const std::string& label, const std::string& plist) const;
    void addKeychainItem(const std::string& service, const std::string& item = "item") const;

    /// Writes a file in the box that everyone may change: state of the fake tools.
    void set(const std::string& path, const std::string& text = "") const;

    /// A program in the box that answers sudo's password prompt; `script` prints the answer.
    [[nodiscard]] static std::string askpass() { return "/box/askpass"; }

    void answerPasswordWith(const std::string& script) const { replace(askpass(), script); }

    static constexpr const char* password = "open sesame";

    /// Starts a copy of sleep(1) at a path in the box; it ends with the box.
    Sleeper& start(const std::string& path, uid_t asUser = user,
                   const std::vector<int>& ignoring = {},
                   const Sleeper::Preparation& first = {}) const;

    /// Runs a shell script in the box as root, in the background, until the box ends.
    void runInBackground(const std::string& script) const;

    /// Mounts an empty folder over a folder of the box, so that nobody can remove it.
    void mountOver(const std::string& path) const;

    /// Replaces a program of the box.
    void replace(const std::string& path, const std::string& script) const;

    /// The uninstaller in the box, as its user starts it, without the test-root variable.
    [[nodiscard]] Program uninstaller(const std::vector<std::string>& arguments) const;

    /// The calls of the fake tools so far, in order, one command line each.
    [[nodiscard]] std::vector<std::string> calls() const;

private:
    void addAccounts() const;

    TemporaryFolder folder_;
    std::string root_;
    mutable PrivateMounts mounts_;
    mutable std::vector<std::unique_ptr<Sleeper>> sleepers_;
    mutable std::vector<pid_t> background_;
};

} // namespace kelmar::test
