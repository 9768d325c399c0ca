#pragma once

#include "discovery/kelmar_paths.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace kelmar::test {

/// A pretend Mac: this machine's file system with a layer over it, in a mount namespace of this
/// process, so that nothing outside sees what happens in it. At the paths of macOS's tools stand
/// stand-ins that write down what they are asked and answer from state in /box; an ordinary user
/// has a home folder. The real executable runs in it, on the real paths.
class Box {
public:
    /// Why this machine can't have a box, if it can't.
    static std::optional<std::string> obstacle();

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

    void addReceipt(const std::string& identifier, const std::string& volume) const;
    void addService(const std::string& label, const std::string& plist) const;
    void addKeychainItem(const std::string& service) const;

    /// Puts another program in the place of one in the box.
    void replace(const std::string& path, const std::string& script) const;

    /// The uninstaller in the box, started by its user without the test-root variable.
    [[nodiscard]] Program uninstaller(const std::vector<std::string>& arguments) const;

    /// What the stand-ins were asked so far, one command line each, in order.
    [[nodiscard]] std::vector<std::string> asked() const;

private:
    TemporaryFolder folder_;
    std::string root_;
};

} // namespace kelmar::test
