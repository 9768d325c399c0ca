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

/// A pretend Mac: this machine's file system with a layer over it, in a mount namespace of this
/// process, so that nothing outside sees what happens in it. At the paths of macOS's tools stand
/// fakes that record their calls and answer from state in /box; an ordinary user has a home folder.
/// The real executable runs in it, on the real paths.
class Box {
public:
    /// Why this machine can't have a box, if it can't.
    static std::optional<std::string> skipReason();

    static constexpr uid_t user = 501;

    Box();
    Box(const Box&) = delete;
    Box& operator=(const Box&) = delete;
    ~Box();

    /// Where a path of the box lies for this process.
    [[nodiscard]] std::string outside(const std::string& path) const { return root_ + path; }

    /// Builds product files at the box's real paths, owned by root; `chownToUser` hands a part
    /// over.
    [[nodiscard]] MacTree tree() const;
    void chownToUser(const std::string& path) const;

    /// With an `error`, the receipt can't be forgotten, and pkgutil prints the error.
    void addReceipt(const std::string& identifier, const std::string& volume,
                    const std::string& error = "") const;
    void addService(const std::string& label, const std::string& plist) const;
    void addKeychainItem(const std::string& service, const std::string& item = "item") const;

    /// Puts a file into the box, for everyone to change: state of the fake tools.
    void set(const std::string& path, const std::string& text = "") const;

    /// A program in the box that answers sudo's question for a password; `script` prints the
    /// answer.
    [[nodiscard]] static std::string askpass() { return "/box/askpass"; }

    void answerPasswordWith(const std::string& script) const { replace(askpass(), script); }

    static constexpr const char* password = "open sesame";

    /// Starts a copy of sleep(1) at a path in the box; it ends with the box.
    Sleeper& start(const std::string& path, uid_t asUser = user,
                   const std::vector<int>& ignoring = {},
                   const Sleeper::Preparation& first = {}) const;

    /// Runs a shell script in the box as root, in the background, until the box ends.
    void runInBackground(const std::string& script) const;

    /// Mounts an empty folder over a folder of the box, which then nobody can remove.
    void mountOver(const std::string& path) const;

    /// Puts another program in the place of one in the box.
    void replace(const std::string& path, const std::string& script) const;

    /// The uninstaller in the box, started by its user without the test-root variable.
    [[nodiscard]] Program uninstaller(const std::vector<std::string>& arguments) const;

    /// The calls of the fake tools so far, one command line each, in order.
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
